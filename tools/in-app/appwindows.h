#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace o7::inapp {

/// Finding and reading windows of another process, as the driving program sees them.

/// The text of a window; empty when it does not answer within a second.
std::wstring textOf(HWND window);

/// The first descendant for which the predicate holds, in the order of the system; null when none.
HWND findChild(HWND parent, const std::function<bool(HWND)>& predicate);

bool hasClass(HWND window, const wchar_t* name);

/// A visible top-level window of a process for which the predicate holds, waited for.
/// @throws std::runtime_error "<what> did not come up." after ten seconds; when the process shows
///         a message box instead, its text is part of the sentence.
HWND waitForWindow(DWORD process, const std::string& what,
                   const std::function<bool(HWND)>& predicate);

/// @throws std::runtime_error "<what> did not go away." after ten seconds.
void waitUntilGone(HWND window, const std::string& what);

/// A drop-down list as its user sees it.
class AppCombo
{
public:
    explicit AppCombo(HWND window) : m_window(window) {}

    /// Position of an entry with this text; -1 when there is none.
    int find(const std::wstring& text) const;
    /// The text of the chosen entry; empty when none is.
    std::wstring chosen() const;
    /// Opens the list with the mouse and picks the entry with the keyboard.
    void choose(int index) const;

private:
    std::wstring entry(int index) const;

    HWND m_window;
};

} // namespace o7::inapp
