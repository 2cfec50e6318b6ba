#pragma once

#include <windows.h>

namespace o7 {

/// Whether a window is laid out from right to left.
bool isMirrored(HWND window) noexcept;

/// The work area of the monitor that a part of the screen is on, in pixels.
RECT workAreaOf(const RECT& part) noexcept;
/// The same for the screen that a window is on, or nearest to.
RECT workAreaOf(HWND window) noexcept;

/// Moves a window over the middle of another, within the work area; without one into the middle of
/// its screen.
void centreOver(HWND window, HWND other) noexcept;

/// The corner of a tip beside a part of the screen: behind it in the direction of reading, before
/// it when there is no room, below it when there is none there either. Never over the part itself
/// while there is room elsewhere, and never outside the work area while the tip fits into it.
/// Pixels.
POINT placeBeside(const RECT& part, SIZE tip, const RECT& workArea, bool isMirrored) noexcept;

} // namespace o7
