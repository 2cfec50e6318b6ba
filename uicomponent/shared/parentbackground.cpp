#include "parentbackground.h"

#include "unmirroreddc.h"

namespace o7 {

namespace {

/// On the screen, with left and right as they are seen, in mirrored windows too.
RECT clientOnScreen(HWND window)
{
    RECT area{};
    ::GetClientRect(window, &area);
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

} // namespace

void drawParentBackground(HWND window, HDC dc) noexcept
{
    const HWND parent = ::GetParent(window);
    RECT client{};
    ::GetClientRect(window, &client);
    // Without mirroring: not every theme draws right into a DC that mirrors and is offset as well.
    const UnmirroredDc unmirrored(dc, client);
    const RECT ours = clientOnScreen(window);
    const RECT theirs = clientOnScreen(parent);
    POINT former{};
    ::OffsetWindowOrgEx(dc, ours.left - theirs.left - unmirrored.area().left,
                        ours.top - theirs.top - unmirrored.area().top, &former);
    ::SendMessageW(parent, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    ::SetWindowOrgEx(dc, former.x, former.y, nullptr);
}

} // namespace o7
