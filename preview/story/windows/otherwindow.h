#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace o7::story {

/// Reading windows of another thread or process, as a story sees them. What a window is asked, it
/// is asked with a time limit: one that does not answer ends the step with StepFailure. Texts are
/// UTF-8.

/// @throws StepFailure when the window's thread hangs. 0 for a window that is gone.
LRESULT ask(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0);

std::string textOf(HWND window);
/// The text of a message that takes a buffer of that many characters (CB_GETLBTEXT and the like).
std::string textByMessage(HWND window, UINT message, WPARAM index, LRESULT length);

bool hasClass(HWND window, const wchar_t* name);

/// The direct children, in the order of Tab.
std::vector<HWND> childrenOf(HWND parent);
/// The first descendant for which the predicate holds; null when none.
HWND findChild(HWND parent, const std::function<bool(HWND)>& predicate);

/// The top-level windows of a thread that can be seen, the one in front first.
std::vector<HWND> visibleWindowsOf(DWORD thread);

/// In quotation marks, for sentences.
std::string quoted(std::string_view text);
std::string utf8(const std::wstring& text);
std::wstring wide(const std::string& text);

} // namespace o7::story
