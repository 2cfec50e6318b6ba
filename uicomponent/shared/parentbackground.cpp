#include "parentbackground.h"

namespace o7 {

void drawParentBackground(HWND window, HDC dc) noexcept
{
    const HWND parent = ::GetParent(window);
    POINT corner{};
    ::MapWindowPoints(window, parent, &corner, 1);
    POINT former{};
    ::OffsetWindowOrgEx(dc, corner.x, corner.y, &former);
    ::SendMessageW(parent, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    ::SetWindowOrgEx(dc, former.x, former.y, nullptr);
}

} // namespace o7
