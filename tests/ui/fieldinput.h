#pragma once

#include <windows.h>

#include <string>

namespace o7::test {

/// The edit boxes and sliders of a page in Tab order, from 0.
HWND boxOf(HWND page, int wanted);
/// What such a box shows; of a slider its position.
std::string textOf(HWND box);
/// Moves the keyboard focus to a control of a page, as the Tab key does.
void focus(HWND box);
/// Types a text in place of the one in the box, as the clipboard or a keyboard of another script
/// would bring it.
void enter(HWND box, const wchar_t* text);
/// The text of the tip that stands on the screen; empty without one.
std::string shownTip();

} // namespace o7::test
