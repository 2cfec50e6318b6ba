#include "tipplacement.h"

#include <algorithm>

namespace o7 {

namespace {

RECT workAreaOfScreen(HMONITOR screen) noexcept
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(screen, &monitor);
    return monitor.rcWork;
}

constexpr LONG kGap = 2;

/// The start of a length that lies within two ends; at the first end when it is too long.
LONG within(LONG start, LONG length, LONG first, LONG last)
{
    return std::max(first, std::min(start, last - length));
}

} // namespace

bool isMirrored(HWND window) noexcept
{
    return (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
}

RECT workAreaOf(const RECT& part) noexcept
{
    return workAreaOfScreen(::MonitorFromRect(&part, MONITOR_DEFAULTTONEAREST));
}

RECT workAreaOf(HWND window) noexcept
{
    return workAreaOfScreen(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

void centreOver(HWND window, HWND other) noexcept
{
    RECT place{};
    ::GetWindowRect(window, &place);
    const RECT area = workAreaOf(other ? other : window);
    RECT around = area;
    if (other)
        ::GetWindowRect(other, &around);
    const LONG width = place.right - place.left;
    const LONG height = place.bottom - place.top;
    const LONG x = within((around.left + around.right - width) / 2, width, area.left, area.right);
    const LONG y = within((around.top + around.bottom - height) / 2, height, area.top, area.bottom);
    ::SetWindowPos(window, nullptr, std::max(x, area.left), std::max(y, area.top), 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

POINT placeBeside(const RECT& part, SIZE tip, const RECT& workArea, bool isMirrored) noexcept
{
    const LONG right = part.right + kGap;
    const LONG left = part.left - kGap - tip.cx;
    const bool fitsRight = right + tip.cx <= workArea.right;
    const bool fitsLeft = left >= workArea.left;
    const LONG besideTop = within(part.top, tip.cy, workArea.top, workArea.bottom);
    if (fitsRight && !(isMirrored && fitsLeft)) {
        return {right, besideTop};
    }
    if (fitsLeft) {
        return {left, besideTop};
    }
    const LONG below = part.bottom + kGap;
    const bool fitsBelow = below + tip.cy <= workArea.bottom;
    return {within(part.left, tip.cx, workArea.left, workArea.right),
            within(fitsBelow ? below : part.top - kGap - tip.cy, tip.cy, workArea.top,
                   workArea.bottom)};
}

} // namespace o7
