#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "visibletext.h"

namespace o7::story {

/// The sheet, dialog or message box of a thread that takes input now; those behind it are disabled.
/// Works by public messages, so it serves any program's windows.
class FrontWindow
{
public:
    /// None: handle() is null.
    FrontWindow() = default;
    explicit FrontWindow(HWND window);
    static FrontWindow of(DWORD thread);

    HWND handle() const { return m_window; }
    bool isSheet() const { return m_tabs != nullptr; }
    bool isMessage() const;

    std::string caption() const;
    /// What a message box says.
    std::string messageText() const;

    /// The page in front, which of a dialog is itself; null while there is none.
    HWND page() const;
    /// Of a sheet; a dialog has none.
    std::vector<TabTitle> tabs() const;
    int currentTab() const;
    HWND tabControl() const { return m_tabs; }
    /// The text of a sheet outside of its pages: its status line. Empty when there is none.
    std::string statusText() const;
    /// The middle of a tab on the screen.
    POINT placeOfTab(int index) const;

    /// A push button anywhere in the window, by its text or, for OK, Cancel and Apply in every
    /// language of the system, by its meaning; null when there is none to be seen.
    HWND button(const std::string& text) const;

    /// Caption and texts in one line, for reports.
    std::string description() const;

    /// Asks the window to go as its Cancel does.
    void cancel() const;

private:
    HWND m_window = nullptr;
    HWND m_tabs = nullptr;
};

} // namespace o7::story
