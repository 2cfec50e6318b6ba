#include "uicontrol.h"

#include "accessibility.h"
#include "dialogconversion.h"
#include "isolationaware.h"
#include "threadslot.h"
#include "uidump.h"
#include "uiservices.h"
#include "uiwindowsmessage.h"
#include "windowtext.h"

#include <cstdlib>

namespace {

/// The parent that is being destroyed on this thread.
struct GoingParentTag;
using GoingParentSlot = o7::ThreadSlot<GoingParentTag>;

int withSignOf(int sign, int magnitude)
{
    return sign < 0 ? -magnitude : magnitude;
}

} // namespace

UIControl::UIControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                     SIZE size, bool inPixels)
    : m_parent(parent), m_conversion(services.getDialogConversion()), m_parentFont(font), m_id(id)
{
    const RECT place =
        toPixels({location.x, location.y, location.x + size.cx, location.y + size.cy}, inPixels);
    m_x = place.left;
    m_y = place.top;
    m_width = place.right - place.left;
    m_height = place.bottom - place.top;
}

UIControl::~UIControl()
{
    // A window that went with its parent is not ours any more, nor is one that got its number.
    if (m_window &&
        (m_parent == GoingParentSlot::get() || ::GetParent(m_window.get()) != m_parent)) {
        m_window.release();
    }
}

UIControl::ParentGoes::ParentGoes(HWND parent) noexcept
    : m_outer(static_cast<HWND>(GoingParentSlot::get()))
{
    GoingParentSlot::set(parent);
}

UIControl::ParentGoes::~ParentGoes()
{
    GoingParentSlot::set(m_outer);
}

bool UIControl::handleMessage(const _UIWindowsMessage& /*message*/)
{
    return false;
}

void UIControl::dump() const
{
}

void UIControl::setEnable(bool enable)
{
    if ((::IsWindowEnabled(getHwnd()) != FALSE) != enable) {
        ::EnableWindow(getHwnd(), enable ? TRUE : FALSE);
    }
}

void UIControl::setShow(bool show)
{
    const bool isShown = (::GetWindowLongPtrW(getHwnd(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (isShown != show) {
        ::ShowWindow(getHwnd(), show ? SW_SHOW : SW_HIDE);
    }
    m_visible = show;
}

void UIControl::keepUnmirrored() const noexcept
{
    constexpr LONG_PTR kFromRight = WS_EX_LAYOUTRTL | WS_EX_RTLREADING;
    const LONG_PTR style = ::GetWindowLongPtrW(getHwnd(), GWL_EXSTYLE);
    if ((style & kFromRight) != 0) {
        ::SetWindowLongPtrW(getHwnd(), GWL_EXSTYLE, style & ~kFromRight);
        repaint(true);
    }
}

void UIControl::move(POINT delta, bool inPixels)
{
    const RECT distance = toPixels({0, 0, std::abs(delta.x), std::abs(delta.y)}, inPixels);
    placeWindow(
        {m_x + withSignOf(delta.x, distance.right), m_y + withSignOf(delta.y, distance.bottom)},
        {m_width, m_height});
}

void UIControl::setLocation(POINT location, bool inPixels)
{
    const RECT place = toPixels({location.x, location.y, location.x, location.y}, inPixels);
    placeWindow({place.left, place.top}, {m_width, m_height});
}

void UIControl::setSize(SIZE size, bool inPixels)
{
    const RECT place = toPixels({0, 0, size.cx, size.cy}, inPixels);
    placeWindow({m_x, m_y}, {place.right, place.bottom});
}

DRAWITEMSTRUCT* UIControl::itemToDraw(const _UIWindowsMessage& message) const noexcept
{
    if (message.message != WM_DRAWITEM) {
        return nullptr;
    }
    auto* item = reinterpret_cast<DRAWITEMSTRUCT*>(message.lParam);
    return item->hwndItem == m_window.get() ? item : nullptr;
}

void UIControl::setLabelText(const CXString& text)
{
    if (!m_window || o7::windowText(getHwnd()) == text) {
        return;
    }
    if ((::GetWindowLongPtrW(m_parent, GWL_STYLE) & WS_VISIBLE) != 0) {
        ::SetWindowTextW(getHwnd(), text.c_str());
    } else {
        ::DefWindowProcW(getHwnd(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

void UIControl::setAccessibleName(const CXString& name)
{
    if (m_window) {
        accessibility().setName(name);
    }
}

void UIControl::setAccessibleRole(LONG role, LONG state)
{
    if (m_window) {
        accessibility().setRole(role, state);
    }
}

void UIControl::setUnavailableParts(std::vector<LONG> parts)
{
    if (m_window) {
        accessibility().setUnavailableParts(std::move(parts));
    }
}

void UIControl::onAccessibilityMessage(UINT message) noexcept
{
    if (m_accessibility) {
        m_accessibility->handleMessage(message);
    }
}

o7::Accessibility& UIControl::accessibility()
{
    if (!m_accessibility) {
        m_accessibility = std::make_unique<o7::Accessibility>(getHwnd());
    }
    return *m_accessibility;
}

void UIControl::repaint(bool erase, const RECT* area) const noexcept
{
    if (m_window) {
        ::InvalidateRect(m_window.get(), area, erase ? TRUE : FALSE);
    }
}

void UIControl::createControlWindow(const wchar_t* className, DWORD style)
{
    createBareWindow(className, style);
    giveFont();
}

void UIControl::createBareWindow(const wchar_t* className, DWORD style)
{
    m_window.reset(IsolationAware::createWindow(0, className, style, {m_x, m_y, m_width, m_height},
                                                m_parent, m_id));
}

void UIControl::giveFont()
{
    ::SendMessageW(getHwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(m_parentFont), FALSE);
}

void UIControl::dumpWindow(const wchar_t* kind, const CXString& addition) const
{
    if (UIDump::isCollecting()) {
        dumpWindow(kind, o7::windowText(getHwnd()), addition);
    }
}

void UIControl::dumpWindow(const wchar_t* kind, const CXString& text,
                           const CXString& addition) const
{
    if (!UIDump::isCollecting()) {
        return;
    }
    CXString line;
    line.Format(L"%s %d \"%s\"%s%s%s%s", kind, m_id, o7::oneLine(text).c_str(),
                ::IsWindowEnabled(getHwnd()) != FALSE ? L"" : L" disabled",
                m_visible ? L"" : L" hidden", addition.IsEmpty() ? L"" : L" ", addition.c_str());
    UIDump::line(line.View());
}

void UIControl::placeWindow(POINT location, SIZE size)
{
    if (location.x == m_x && location.y == m_y && size.cx == m_width && size.cy == m_height) {
        return;
    }
    m_x = location.x;
    m_y = location.y;
    m_width = size.cx;
    m_height = size.cy;
    ::MoveWindow(getHwnd(), m_x, m_y, m_width, m_height, TRUE);
}

RECT UIControl::toPixels(const RECT& place, bool inPixels) const
{
    return inPixels ? place : m_conversion.dialogUnitsToPixels(place);
}
