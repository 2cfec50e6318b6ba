#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <string>

#include "pluginsheet.h"
#include "printerstandin.h"
#include "productsession.h"
#include "uimode.h"

class UIManager;

namespace o7 {

/// Shows a product's pages through the driver's plug-in (PluginSheet). In place of an installed
/// printer the session says what the printer is like, and in place of a program's document it has
/// the settings.
class PluginEntry : private PrinterStandIn
{
public:
    /// Called while a sheet is open: its pages and their manager, which belongs to the plug-in.
    using PagesAdded = std::function<void(UIManager&)>;

    /// @param session  the product and its settings; gets back what was accepted.
    /// @param package  the product's folder, for the plug-in to open by itself.
    PluginEntry(ProductSession& session, const std::filesystem::path& package, UIMode mode,
                PagesAdded pagesAdded);
    ~PluginEntry() = default;
    PluginEntry(const PluginEntry&) = delete;
    PluginEntry& operator=(const PluginEntry&) = delete;

    /// Modal.
    /// @return whether settings were accepted, with OK or Apply.
    /// @throws std::runtime_error as PluginSheet does.
    bool run(HWND owner);

private:
    const wchar_t* package() const override { return m_package.c_str(); }
    const wchar_t* language() const override { return m_language.c_str(); }
    void loadDeviceSettings(IDataModel& model) override;
    bool storeDeviceSettings(const IDataModel& model) override;
    void pagesAdded(UIManager& manager) override { m_pagesAdded(manager); }

    bool runDocument(HWND owner);

    ProductSession& m_session;
    std::wstring m_package;
    CXString m_language;
    UIMode m_mode;
    PagesAdded m_pagesAdded;
    bool m_deviceStored = false;
    PluginSheet m_sheet; // last: it hears of the others
};

} // namespace o7
