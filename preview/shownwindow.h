#pragma once

#include <windows.h>

#include <string>

namespace o7 {

/// A property sheet or a dialog of this thread as the driver sees it: so many pages with titles,
/// one of them current. A dialog has one page, itself. Works by the sheet's public messages, so it
/// serves any sheet, whoever opened it.
class ShownWindow
{
public:
    ShownWindow() = default;
    explicit ShownWindow(HWND window);

    HWND handle() const { return m_window; }
    bool isSheet() const { return m_tabs != nullptr; }
    bool isOpen() const { return m_window && IsWindow(m_window) && IsWindowVisible(m_window); }

    int pageCount() const;
    /// The tab's text, or the caption of a dialog; without mnemonic marks.
    std::wstring pageTitle(int index) const;
    /// Asks for the page; the sheet may refuse (see currentPage).
    void selectPage(int index) const;
    int currentPage() const;
    /// True when the current page has a visible window.
    bool pageIsShown() const;

    /// Presses Cancel, when the window is still there. Posted, as it may be inside a message.
    void cancel() const;

    /// Caption and the texts inside, in one line: to say what an unexpected window wanted.
    std::wstring description() const;

    /// A visible window of the calling thread that can take input and has the class of dialogs and
    /// sheets, other than the given one; null when there is none.
    static HWND findOther(HWND known);

private:
    HWND m_window = nullptr;
    HWND m_tabs = nullptr; ///< the sheet's tab control; null for a dialog
};

} // namespace o7
