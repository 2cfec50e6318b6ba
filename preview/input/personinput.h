#pragma once

#include <windows.h>

#include <span>
#include <string_view>

namespace o7::input {

/// Real input by SendInput, as a person's hand would give it, to whatever window has the place or
/// the keyboard. Every function returns when the system has the input; who needs what follows from
/// it waits for that. They throw std::runtime_error when the system takes none.

/// Moves the pointer to a point of the screen (pixels) and presses and releases the left button.
void click(POINT place);

/// The middle of a window on the screen.
POINT middleOf(HWND window);

/// One event of the mouse where the pointer is (MOUSEEVENTF_...): a part of a drag, which moves by
/// `right` pixels, or a turn of the wheel by `wheel`.
void mouse(DWORD event, LONG right = 0, int wheel = 0);

/// Presses and releases a virtual key while the given ones (VK_SHIFT, VK_CONTROL, VK_MENU) are
/// held.
void key(WORD virtualKey, std::span<const WORD> held = {});

/// Types a text of any letters.
void text(std::wstring_view letters);

} // namespace o7::input
