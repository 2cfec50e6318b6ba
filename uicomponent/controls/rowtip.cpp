#include "rowtip.h"

#include "cxstring.h"
#include "tipplacement.h"

#include <commctrl.h>

#include <algorithm>

namespace o7 {

namespace {

/// Top left corner of a tip of this size, in pixels of the screen, with the whole of it on the
/// monitor that the row is on.
POINT placeFor(SIZE tip, const RECT& row, int x, bool growsLeft)
{
    const RECT work = workAreaOf(row);
    POINT place{growsLeft ? x - tip.cx : x, row.bottom};
    if (place.y + tip.cy > work.bottom) {
        place.y = row.top - tip.cy;
    }
    place.x = std::max(work.left, std::min(place.x, work.right - tip.cx));
    return place;
}

} // namespace

void RowTip::show(HWND list, const RECT& row, int x, const CXString& text)
{
    hide();
    if (text.IsEmpty()) {
        return;
    }
    m_list = list;
    RECT onScreen = row;
    POINT start{x, 0};
    ::MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&onScreen), 2);
    ::MapWindowPoints(list, nullptr, &start, 1);
    m_toolTips.showPlaced(
        list, text, [&](SIZE size) { return placeFor(size, onScreen, start.x, isMirrored(list)); });
}

void RowTip::hide() noexcept
{
    if (m_list != nullptr) {
        m_toolTips.hidePlaced(m_list);
        m_list = nullptr;
    }
}

DWORD RowTip::restingTime() const noexcept
{
    return static_cast<DWORD>(::SendMessageW(m_toolTips.getHwnd(), TTM_GETDELAYTIME,
                                             isShown() ? TTDT_RESHOW : TTDT_INITIAL, 0));
}

} // namespace o7
