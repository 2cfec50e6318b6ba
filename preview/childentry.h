#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace o7 {

/// A caller that owns a property sheet and lets the UI module add its pages to it: a modeless sheet
/// with one plain page about the product, and the message loop for it.
class ChildEntry
{
public:
    /// Adds the pages to the sheet window.
    using AddPages = std::function<void(HWND sheet)>;

    /// @param about  the text of the plain page.
    ChildEntry(std::wstring caption, std::wstring about);

    /// Returns when the sheet is closed. Lets through what `addPages` throws, after destroying the
    /// sheet; throws std::runtime_error when no sheet could be opened.
    void run(const AddPages& addPages);

private:
    static INT_PTR CALLBACK aboutPageProcedure(HWND page, UINT message, WPARAM, LPARAM lParam);
    HWND openSheet();

    std::wstring m_caption;
    std::wstring m_about;
};

} // namespace o7
