#include "uiinfobuttoncontrol.h"

#include <oleacc.h>

#include <algorithm>

#include "paintbuffer.h"
#include "parentbackground.h"
#include "uidump.h"
#include "uitooltips.h"
#include "uiwindowsmessage.h"

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;

} // namespace

UIInfoButtonControl::UIInfoButtonControl(HWND parent, int id, UIServices& services, POINT location,
                                         SIZE size, UIToolTips* toolTips)
    : UIControl(parent, id, services, nullptr, location, size, true), m_toolTips(toolTips)
{
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", kStyle);
    setAccessibleRole(ROLE_SYSTEM_PUSHBUTTON);
}

UIInfoButtonControl::~UIInfoButtonControl()
{
    if (m_toolTips && !m_text.IsEmpty())
        m_toolTips->DeleteToolFromToolTip(getHwnd());
}

void UIInfoButtonControl::setMessage(std::uint32_t style, const CXString& text,
                                     const CXString& title)
{
    m_title = title;
    if (style != m_style) {
        m_style = style;
        InvalidateRect(getHwnd(), nullptr, FALSE);
    }
    if (text == m_text)
        return;
    // The window text is what a screen reader speaks; nothing shows it.
    SetWindowTextW(getHwnd(), text.c_str());
    const auto tip = reinterpret_cast<INT_PTR>(text.c_str());
    if (m_toolTips && m_text.IsEmpty())
        m_toolTips->AddToolAndTipMessage(getHwnd(), nullptr, tip);
    else if (m_toolTips)
        m_toolTips->UpdateTipMessage(getHwnd(), nullptr, tip);
    m_text = text;
}

bool UIInfoButtonControl::handleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_DRAWITEM) {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
        if (item.hwndItem != getHwnd())
            return false;
        draw(item);
        message.result = TRUE;
        return true;
    }
    if (message.message == WM_COMMAND && reinterpret_cast<HWND>(message.lParam) == getHwnd()) {
        if (HIWORD(message.wParam) == BN_CLICKED)
            showMessage();
        return true;
    }
    return false;
}

void UIInfoButtonControl::showMessage() const
{
    // The reason may change, and this button go, while the box is open: work on copies.
    const CXString text = m_text;
    const CXString title = m_title;
    const UINT icon = m_style == kConflict ? MB_ICONWARNING : MB_ICONINFORMATION;
    MessageBoxW(GetAncestor(getParentHwnd(), GA_ROOT), text.c_str(), title.c_str(), MB_OK | icon);
}

void UIInfoButtonControl::draw(const DRAWITEMSTRUCT& item) const
{
    const o7::PaintBuffer buffer(item.hDC, item.rcItem);
    o7::drawParentBackground(getHwnd(), buffer.dc());
    const int side = static_cast<int>(std::min(item.rcItem.right - item.rcItem.left,
                                               item.rcItem.bottom - item.rcItem.top)) -
                     2;
    // A shared icon of the system: its colours follow the person's theme, and nobody releases it.
    const auto icon =
        static_cast<HICON>(LoadImageW(nullptr, m_style == kConflict ? IDI_WARNING : IDI_INFORMATION,
                                      IMAGE_ICON, 0, 0, LR_SHARED | LR_DEFAULTSIZE));
    const int x = item.rcItem.left + (item.rcItem.right - item.rcItem.left - side) / 2;
    const int y = item.rcItem.top + (item.rcItem.bottom - item.rcItem.top - side) / 2;
    DrawIconEx(buffer.dc(), x, y, icon, side, side, 0, nullptr, DI_NORMAL);
    if (item.itemState & ODS_FOCUS)
        DrawFocusRect(buffer.dc(), &item.rcItem);
}

void UIInfoButtonControl::dump() const
{
    dumpWindow(m_style == kConflict ? L"conflict" : L"information", m_text);
}
