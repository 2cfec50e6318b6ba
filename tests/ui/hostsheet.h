#pragma once

#include <windows.h>

#include <prsht.h>

#include "isolationaware.h"
#include "uidialogtemplate.h"
#include "uihandles.h"

namespace o7::test {

/// A property sheet of a host, modeless, with one page of its own, into which pages of ours come.
class HostSheet
{
public:
    /// @param width, height  of its page, in dialog units
    explicit HostSheet(long width = 220, long height = 90);
    HostSheet(const HostSheet&) = delete;
    HostSheet& operator=(const HostSheet&) = delete;

    HWND get() const { return m_sheet.get(); }
    int tabs() const;
    void destroy() { m_sheet.reset(); }
    /// Brings a page to the front; the host's own one is the first.
    void select(int index) const;
    /// Presses one of its buttons (PSBTN_...) and waits until all is done.
    void press(int button) const;

private:
    const IsolationAware::Session m_session; ///< the host has the library, too
    UIDialogTemplate m_template;
    o7::UniqueWindow m_sheet;
};

} // namespace o7::test
