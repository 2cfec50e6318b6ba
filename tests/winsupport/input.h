#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>

namespace o7::test {

/// Real input by SendInput, as a person's hand would give it, and waiting without guessing times.
/// Every function dispatches the calling thread's messages while it waits, so a test works the same
/// whether the windows belong to its own thread or to another one. For a modal dialog, whose loop
/// keeps the thread, call them from a second thread.

/// Dispatches what is in this thread's queue now (keyboard messages translated).
void pumpMessages();

/// Dispatches messages until the predicate holds; false when it did not within the time.
/// The predicate is asked at once, and after every message.
bool pumpUntil(const std::function<bool()>& predicate, int milliseconds = 2000);

/// Dispatches messages until none came for the given time.
void pumpUntilQuiet(int milliseconds = 30);

/// Moves the pointer to a point of the screen (pixels) and presses and releases the left button.
void sendClick(int x, int y);
/// Clicks the middle of the window. The window must be visible and not covered.
void sendClick(HWND window);

/// One event of the mouse where the pointer is (MOUSEEVENTF_...): a part of a drag, which moves by
/// `right` pixels, or a turn of the wheel by `wheel`.
void sendMouse(DWORD event, LONG right = 0, int wheel = 0);

/// Presses and releases a virtual key while the given ones (VK_SHIFT, VK_CONTROL, VK_MENU) are
/// held.
void sendKey(WORD virtualKey, std::initializer_list<WORD> held = {});

/// The same without dispatching anything: for a step of an IdleDriver whose input opens a modal
/// box, for the loop of that box would run inside the step.
void strikeKey(WORD virtualKey, std::initializer_list<WORD> held = {});
void strikeClick(HWND window);

} // namespace o7::test
