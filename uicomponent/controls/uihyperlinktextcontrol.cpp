#include "uihyperlinktextcontrol.h"

#include "paintbuffer.h"
#include "parentbackground.h"
#include "uiwindowsmessage.h"
#include "windowtext.h"

#include <oleacc.h>

#include <cstdlib>

namespace {

constexpr DWORD kStyle = 0x5000010D; // child, visible, notifying, owner drawn
constexpr LPARAM kRepeatedKey = 0x40000000;

bool isEnter(LPARAM message)
{
    const auto* asked = reinterpret_cast<const MSG*>(message);
    return asked != nullptr && asked->message == WM_KEYDOWN && asked->wParam == VK_RETURN;
}

/// How bright a colour is, 0 to 255000.
int brightness(COLORREF colour)
{
    return GetRValue(colour) * 299 + GetGValue(colour) * 587 + GetBValue(colour) * 114;
}

/// The system's colour of links; in a scheme where that cannot be told from the ground, blue, and
/// where that cannot either, the colour of other texts.
COLORREF linkColour(COLORREF ground)
{
    constexpr int kReadable = 90000;
    for (const COLORREF colour : {::GetSysColor(COLOR_HOTLIGHT), DWORD{RGB(0, 0, 255)}}) {
        if (std::abs(brightness(colour) - brightness(ground)) >= kReadable) {
            return colour;
        }
    }
    return ::GetSysColor(COLOR_BTNTEXT);
}

} // namespace

UIHyperlinkTextControl::UIHyperlinkTextControl(HWND parent, int id, UIServices& services,
                                               HFONT font, POINT location, SIZE size, DWORD style)
    : UIControl(parent, id, services, font, location, size, false)
{
    setControl(this);
    setVisibleFlag(true);
    createControlWindow(L"STATIC", style | kStyle);
    subclassWindow(UIControl::getHwnd());
    setAccessibleRole(ROLE_SYSTEM_LINK, STATE_SYSTEM_LINKED | STATE_SYSTEM_FOCUSABLE);
}

UIHyperlinkTextControl::~UIHyperlinkTextControl()
{
    restoreProcedure();
}

bool UIHyperlinkTextControl::handleMessage(const _UIWindowsMessage& message)
{
    const DRAWITEMSTRUCT* item = itemToDraw(message);
    if (item == nullptr) {
        return false;
    }
    draw(*item);
    message.result = TRUE;
    return true;
}

void UIHyperlinkTextControl::clearText() const
{
    o7::setWindowTextIfDifferent(getHwnd(), {});
}

void UIHyperlinkTextControl::boldText(bool /*bold*/)
{
}

void UIHyperlinkTextControl::dump() const
{
    dumpWindow(L"link", {});
}

LRESULT UIHyperlinkTextControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                        LPARAM lParam)
{
    switch (message) {
    case WM_SETCURSOR:
        ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
        return TRUE;
    case WM_ERASEBKGND:
        return TRUE; // draw covers everything
    case WM_SETTEXT: {
        const LRESULT result = callSavedProcedure(window, message, wParam, lParam);
        if (::IsWindowVisible(window) != FALSE) {
            ::InvalidateRect(window, nullptr, FALSE);
        }
        return result;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        ::InvalidateRect(window, nullptr, FALSE);
        break;
    case WM_GETDLGCODE:
        if (isEnter(lParam)) { // or the default button would get it
            return DLGC_WANTMESSAGE;
        }
        break;
    case WM_KEYDOWN:
        if (pressedBy(wParam, lParam)) {
            return 0;
        }
        break;
    default:
        break;
    }
    return callSavedProcedure(window, message, wParam, lParam);
}

bool UIHyperlinkTextControl::pressedBy(WPARAM key, LPARAM keyData)
{
    if ((key != VK_RETURN && key != VK_SPACE) || (keyData & kRepeatedKey) != 0) {
        return false;
    }
    ::SendMessageW(getParentHwnd(), WM_COMMAND, MAKEWPARAM(getId(), STN_CLICKED),
                   reinterpret_cast<LPARAM>(getHwnd()));
    return true;
}

void UIHyperlinkTextControl::draw(const DRAWITEMSTRUCT& item) const
{
    const o7::PaintBuffer buffer(item.hDC, item.rcItem);
    o7::drawParentBackground(item.hwndItem, buffer.dc());
    drawText(item, buffer.dc());
    if (::GetFocus() == item.hwndItem) {
        ::SetTextColor(buffer.dc(), RGB(0, 0, 0)); // what inverts the ground
        ::SetBkColor(buffer.dc(), RGB(255, 255, 255));
        ::DrawFocusRect(buffer.dc(), &item.rcItem);
    }
}

void UIHyperlinkTextControl::drawText(const DRAWITEMSTRUCT& item, HDC dc) const
{
    const CXString text = getText();
    if (text.IsEmpty()) {
        return;
    }
    const o7::UniqueFont font = makeLinkFont();
    const o7::SelectedObject selected(dc, font.get());
    const bool isEnabled = ::IsWindowEnabled(item.hwndItem) != FALSE;
    const COLORREF ground = ::GetPixel(dc, item.rcItem.left, item.rcItem.top);
    ::SetTextColor(dc, isEnabled ? linkColour(ground) : ::GetSysColor(COLOR_GRAYTEXT));
    ::SetBkMode(dc, TRANSPARENT);
    ::TextOutW(dc, item.rcItem.left, item.rcItem.top, text.c_str(), text.GetLength());
}

o7::UniqueFont UIHyperlinkTextControl::makeLinkFont() const
{
    LOGFONTW description{};
    HGDIOBJ base = getParentFont();
    ::GetObjectW(base != nullptr ? base : ::GetStockObject(DEFAULT_GUI_FONT), sizeof description,
                 &description);
    description.lfWeight = FW_BOLD;
    description.lfUnderline = TRUE;
    return o7::UniqueFont(::CreateFontIndirectW(&description));
}
