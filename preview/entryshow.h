#pragma once

#include <functional>
#include <string>

#include "cxstring.h"
#include "previewoptions.h"
#include "productsession.h"
#include "uimode.h"

class UIManager;

namespace o7 {

/// Shows the pages of a session the way an entry does: in a sheet of the module, in one of ours, or
/// as the compact dialog. Not the entry that goes through the driver (PluginEntry).
class EntryShow
{
public:
    /// Called with the manager before the pages are shown, and with null when they are gone.
    using ManagerChanged = std::function<void(UIManager*)>;

    /// @param session  with the settings to show; borrowed.
    /// @param about    the text of the host's own page, where there is one.
    EntryShow(ProductSession& session, PreviewEntry entry, UIMode mode, std::wstring about,
              ManagerChanged managerChanged);

    /// Modal. Settings that were accepted are the accepted ones of the model then; whether there
    /// were, its event tells (AcceptanceWatch).
    void run();

private:
    void show(UIManager& manager);
    void showDialog(UIManager& manager);

    ProductSession& m_session;
    PreviewEntry m_entry;
    UIMode m_mode;
    std::wstring m_about;
    ManagerChanged m_managerChanged;
};

} // namespace o7
