#include "uiinfobuttoncontrol.h"

#include <algorithm>
#include <utility>

#include "paintbuffer.h"
#include "parentbackground.h"
#include "uidump.h"
#include "uiservices.h"
#include "uitooltips.h"
#include "uiwindowsmessage.h"
#include "unmirroreddc.h"

namespace {

// In place of a notification code of the button: show the reason now, or only if there is a way
// out of it.
constexpr WORD kShowMessage = 0x7001;
constexpr WORD kOfferWaysOut = 0x7002;
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW;

bool isHighContrast()
{
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

/// An exclamation mark in a triangle or an i in a circle, in the colours of the person's texts.
void drawSign(HDC dc, const RECT& place, bool isConflict)
{
    const int saved = SaveDC(dc);
    SetDCPenColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetDCBrushColor(dc, GetSysColor(COLOR_WINDOW));
    SelectObject(dc, GetStockObject(DC_PEN));
    SelectObject(dc, GetStockObject(DC_BRUSH));
    const LONG side = place.right - place.left;
    const LONG middle = place.left + side / 2;
    const LONG thickness = std::max(1L, side / 8);
    if (isConflict) {
        const POINT corners[] = {{middle, place.top},
                                 {place.right - 1, place.bottom - 1},
                                 {place.left, place.bottom - 1}};
        Polygon(dc, corners, 3);
    } else {
        Ellipse(dc, place.left, place.top, place.right, place.bottom);
    }
    // A dot and a bar, with a gap between them; the dot of the i is above.
    const LONG top = place.top + side * (isConflict ? 3 : 2) / 8;
    const LONG bottom = place.bottom - side / 6;
    const LONG dotTop = isConflict ? bottom - thickness : top;
    const std::pair dot(dotTop, dotTop + thickness);
    const std::pair bar =
        isConflict ? std::pair(top, dotTop - thickness) : std::pair(dot.second + thickness, bottom);
    SetDCBrushColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    for (const auto& [from, to] : {dot, bar}) {
        const RECT part{middle - thickness / 2, from, middle - thickness / 2 + thickness, to};
        FillRect(dc, &part, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }
    RestoreDC(dc, saved);
}

/// In the middle of the area; the right way round in right-to-left layouts too.
void drawIcon(HDC dc, const RECT& area, bool isConflict)
{
    const o7::UnmirroredDc unmirrored(dc, area);
    const RECT& place = unmirrored.area();
    const LONG width = place.right - place.left;
    const LONG height = place.bottom - place.top;
    const int side = static_cast<int>(std::min(width, height)) - 2;
    const LONG left = place.left + (width - side) / 2;
    const LONG top = place.top + (height - side) / 2;
    if (isHighContrast()) {
        drawSign(dc, {left, top, left + side, top + side}, isConflict);
        return;
    }
    const wchar_t* const name = isConflict ? IDI_WARNING : IDI_INFORMATION;
    // A shared icon of the system: its colours follow the person's theme, and nobody releases it.
    const auto icon =
        static_cast<HICON>(LoadImageW(nullptr, name, IMAGE_ICON, 0, 0, LR_SHARED | LR_DEFAULTSIZE));
    DrawIconEx(dc, left, top, icon, side, side, 0, nullptr, DI_NORMAL);
}

} // namespace

UIInfoButtonControl::UIInfoButtonControl(HWND parent, int id, UIServices& services, POINT location,
                                         SIZE size, UIToolTips* toolTips)
    : UIControl(parent, id, services, nullptr, location, size, true),
      m_services(services),
      m_toolTips(toolTips)
{
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", kStyle);
    subclassWindow(getHwnd());
}

UIInfoButtonControl::~UIInfoButtonControl()
{
    if (m_toolTips)
        m_toolTips->setTip(getHwnd(), {});
    restoreProcedure();
}

void UIInfoButtonControl::setMessage(std::uint32_t style, const CXString& text,
                                     const CXString& title)
{
    m_title = title;
    const bool isFresh = m_style == 0;
    if (style != m_style) {
        m_style = style;
        if (!isFresh)
            repaint(false);
    }
    if (text == m_text)
        return;
    m_text = text;
    // What a screen reader speaks. Nothing shows it, so nothing is painted.
    DefWindowProcW(getHwnd(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    if (m_toolTips)
        m_toolTips->setTip(getHwnd(), text);
}

bool UIInfoButtonControl::handleMessage(const _UIWindowsMessage& message)
{
    if (const DRAWITEMSTRUCT* item = itemToDraw(message)) {
        draw(*item);
        message.result = TRUE;
        return true;
    }
    if (message.message == WM_COMMAND && reinterpret_cast<HWND>(message.lParam) == getHwnd()) {
        if (HIWORD(message.wParam) == BN_CLICKED)
            post(kShowMessage);
        if (HIWORD(message.wParam) == kShowMessage || HIWORD(message.wParam) == kOfferWaysOut)
            showMessage(HIWORD(message.wParam) == kOfferWaysOut);
        return true;
    }
    return false;
}

// A dialog gives Enter to its default button, unless the one with the focus asks for it.
LRESULT UIInfoButtonControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                     LPARAM lParam)
{
    const auto* key = reinterpret_cast<const MSG*>(lParam);
    if (message == WM_GETDLGCODE && key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN)
        return callSavedProcedure(window, message, wParam, lParam) | DLGC_WANTMESSAGE;
    if (message == WM_KEYDOWN && wParam == VK_RETURN) {
        post(kShowMessage);
        return 0;
    }
    return callSavedProcedure(window, message, wParam, lParam);
}

void UIInfoButtonControl::post(WORD code) const
{
    PostMessageW(getParentHwnd(), WM_COMMAND, MAKEWPARAM(getId(), code),
                 reinterpret_cast<LPARAM>(getHwnd()));
}

void UIInfoButtonControl::offerWaysOut() const
{
    post(kOfferWaysOut);
}

void UIInfoButtonControl::showMessage(bool onlyWithWaysOut) const
{
    // The reason may change, and this button go, while the box is open: work on copies.
    const Reason reason{GetAncestor(getParentHwnd(), GA_ROOT), m_style, m_text, m_title};
    const UIServices& services = m_services;
    const Explainer explainer = m_explainer;
    if ((explainer && explainer(reason)) || onlyWithWaysOut)
        return;
    const UINT icon = reason.style == kConflict ? MB_ICONWARNING : MB_ICONINFORMATION;
    services.showMessage(reason.owner, reason.text, reason.title, MB_OK | icon);
}

void UIInfoButtonControl::draw(const DRAWITEMSTRUCT& item) const
{
    const o7::PaintBuffer buffer(item.hDC, item.rcItem);
    o7::drawParentBackground(getHwnd(), buffer.dc());
    drawIcon(buffer.dc(), item.rcItem, m_style == kConflict);
    if (item.itemState & ODS_FOCUS)
        DrawFocusRect(buffer.dc(), &item.rcItem);
}

void UIInfoButtonControl::dump() const
{
    dumpWindow(m_style == kConflict ? L"conflict" : L"information", m_text);
}
