#include "rowtip.h"

#include "cxstring.h"

#include <commctrl.h>

#include <algorithm>

namespace o7 {

namespace {

/// The number of the tool; windows stand for themselves, by their handles.
constexpr UINT_PTR kTool = 1;

TTTOOLINFOW toolOf(HWND list)
{
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
    tool.hwnd = list;
    tool.uId = kTool;
    return tool;
}

bool isMirrored(HWND window)
{
    return (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
}

/// Top left corner of a tip of this size, in pixels of the screen, with the whole of it on the
/// monitor that the row is on.
POINT placeFor(SIZE tip, const RECT& row, int x, bool growsLeft)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromRect(&row, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& work = monitor.rcWork;
    POINT place{growsLeft ? x - tip.cx : x, row.bottom};
    if (place.y + tip.cy > work.bottom) {
        place.y = row.top - tip.cy;
    }
    place.x = std::max(work.left, std::min(place.x, work.right - tip.cx));
    return place;
}

LRESULT send(HWND window, UINT message, WPARAM wParam, TTTOOLINFOW& tool)
{
    return ::SendMessageW(window, message, wParam, reinterpret_cast<LPARAM>(&tool));
}

} // namespace

void RowTip::show(HWND list, const RECT& row, int x, const CXString& text)
{
    hide();
    HWND window = m_toolTips.getHwnd();
    if (text.IsEmpty() || window == nullptr) {
        return;
    }
    TTTOOLINFOW tool = toolOf(list);
    const bool mirrored = isMirrored(list);
    tool.uFlags |= mirrored ? UINT{TTF_RTLREADING} : 0U;
    tool.lpszText = const_cast<wchar_t*>(text.c_str());
    if (send(window, TTM_ADDTOOLW, 0, tool) == FALSE) {
        return;
    }
    m_list = list;
    RECT onScreen = row;
    POINT start{x, 0};
    ::MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&onScreen), 2);
    ::MapWindowPoints(list, nullptr, &start, 1);
    const auto moveTo = [&](SIZE size) {
        const POINT place = placeFor(size, onScreen, start.x, mirrored);
        ::SendMessageW(window, TTM_TRACKPOSITION, 0, MAKELPARAM(place.x, place.y));
    };
    const auto expected = static_cast<DWORD>(send(window, TTM_GETBUBBLESIZE, 0, tool));
    moveTo({LOWORD(expected), HIWORD(expected)});
    send(window, TTM_TRACKACTIVATE, TRUE, tool);
    // Wine foresees the size of the tip before; then this one has come out otherwise.
    RECT shown{};
    ::GetWindowRect(window, &shown);
    moveTo({shown.right - shown.left, shown.bottom - shown.top});
}

void RowTip::hide() noexcept
{
    if (m_list != nullptr) {
        TTTOOLINFOW tool = toolOf(m_list);
        send(m_toolTips.getHwnd(), TTM_TRACKACTIVATE, FALSE, tool);
        send(m_toolTips.getHwnd(), TTM_DELTOOLW, 0, tool);
        m_list = nullptr;
    }
}

DWORD RowTip::restingTime() const noexcept
{
    return static_cast<DWORD>(::SendMessageW(m_toolTips.getHwnd(), TTM_GETDELAYTIME,
                                             isShown() ? TTDT_RESHOW : TTDT_INITIAL, 0));
}

} // namespace o7
