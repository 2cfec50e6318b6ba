#include "uibitmapbuttoncontrol.h"

#include "dialogconversion.h"
#include "isolationaware.h"
#include "operatingsystem.h"
#include "paintbuffer.h"
#include "parentbackground.h"
#include "uiimageutility.h"
#include "uiwindowsmessage.h"
#include "windowtext.h"

#include <oleacc.h>
#include <uxtheme.h>
#include <vssym32.h>

#include <cstdlib>

namespace {

constexpr DWORD kStyle = 0x5001004B; // child, visible, tab stop, picture, owner drawn
constexpr LONG kMargin = 4;          // dialog units that the bitmap area is smaller by, each way
constexpr int kFocusInset = 3;       // pixels between the button's edge and the focus rectangle

/// One opened theme of a window (OpenThemeData, CloseThemeData).
class Theme
{
public:
    Theme(const SystemLibrary& library, HWND window, const wchar_t* classes) noexcept
        : m_library(library)
    {
        const auto open = library.function<decltype(&::OpenThemeData)>("OpenThemeData");
        m_theme = open != nullptr ? open(window, classes) : nullptr;
    }
    ~Theme()
    {
        const auto close = m_library.function<decltype(&::CloseThemeData)>("CloseThemeData");
        if (m_theme != nullptr && close != nullptr) {
            close(m_theme);
        }
    }
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;

    bool draw(HDC dc, int part, int state, const RECT& area) const noexcept
    {
        const auto drawPart =
            m_library.function<decltype(&::DrawThemeBackground)>("DrawThemeBackground");
        return m_theme != nullptr && drawPart != nullptr &&
               SUCCEEDED(drawPart(m_theme, dc, part, state, &area, nullptr));
    }

private:
    const SystemLibrary& m_library;
    HTHEME m_theme;
};

int themeState(UINT itemState, bool hot)
{
    if ((itemState & ODS_FOCUS) != 0) {
        return hot ? PBS_HOT : PBS_DEFAULTED;
    }
    if (hot) {
        return PBS_HOT;
    }
    if ((itemState & ODS_SELECTED) != 0) {
        return PBS_PRESSED;
    }
    return (itemState & ODS_DISABLED) != 0 ? PBS_DISABLED : PBS_NORMAL;
}

/// Two lines with a common corner, drawn in a system colour just inside a rectangle.
void drawCorner(HDC dc, const RECT& area, int colour, bool upperLeft)
{
    const o7::UniquePen pen(::CreatePen(PS_SOLID, 1, ::GetSysColor(colour)));
    const o7::SelectedObject selected(dc, pen.get());
    const LONG x = upperLeft ? area.left : area.right - 1;
    const LONG y = upperLeft ? area.top : area.bottom - 1;
    // A line leaves its last pixel out.
    const POINT corner[] = {{upperLeft ? area.right - 1 : area.left, y},
                            {x, y},
                            {x, upperLeft ? area.bottom : area.top - 1}};
    ::Polyline(dc, corner, 3);
}

} // namespace

UIBitmapButtonControl::UIBitmapButtonControl(HWND parent, int id, UIServices& services, HFONT font,
                                             POINT location, SIZE size, INT_PTR normalBitmap,
                                             INT_PTR disabledBitmap)
    : UIControl(parent, id, services, font, location, size, false)
{
    setControl(this);
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", kStyle);
    askTheme();
    subclassWindow(UIControl::getHwnd());
    setAccessibleRole(ROLE_SYSTEM_PUSHBUTTON);
    load(m_normal, normalBitmap);
    load(m_disabled, disabledBitmap);
}

UIBitmapButtonControl::~UIBitmapButtonControl()
{
    restoreProcedure();
}

bool UIBitmapButtonControl::handleMessage(const _UIWindowsMessage& message)
{
    DRAWITEMSTRUCT* item = itemToDraw(message);
    if (item == nullptr) {
        return false;
    }
    Draw(item);
    message.result = TRUE;
    return true;
}

CXString UIBitmapButtonControl::getButtonDisplayName()
{
    return o7::windowText(getHwnd());
}

SIZE UIBitmapButtonControl::getTextAreaInPixels()
{
    const SIZE whole = getDimensionInPixels();
    const SIZE margin = getConversion().dialogUnitsToPixels(SIZE{kMargin, kMargin});
    return {whole.cx - margin.cx, whole.cy - margin.cy};
}

void UIBitmapButtonControl::setButtonDisplayName(const CXString& /*name*/) const
{
}

void UIBitmapButtonControl::dump() const
{
    dumpWindow(L"bitmap button", CXString::Formatted(L"%d %d", static_cast<int>(m_normal.id),
                                                     static_cast<int>(m_disabled.id)));
}

void UIBitmapButtonControl::setBitmaps(INT_PTR normalBitmap, INT_PTR disabledBitmap)
{
    const bool normalChanged = load(m_normal, normalBitmap);
    const bool disabledChanged = load(m_disabled, disabledBitmap);
    if (normalChanged || disabledChanged) {
        invalidate();
    }
}

bool UIBitmapButtonControl::load(Sign& sign, INT_PTR id)
{
    if (sign.id == id) {
        return false;
    }
    sign.id = id;
    sign.bitmap.reset(id != 0 ? ::LoadBitmapW(IsolationAware::moduleInstance(),
                                              reinterpret_cast<const wchar_t*>(id))
                              : nullptr);
    return true;
}

void UIBitmapButtonControl::askTheme()
{
    if (OperatingSystem::IsUiThemeEnabled()) {
        m_themes.emplace(L"UxTheme.dll");
    } else {
        m_themes.reset();
    }
}

LRESULT UIBitmapButtonControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                       LPARAM lParam)
{
    switch (message) {
    case WM_KILLFOCUS:
    case WM_MOUSELEAVE:
        cancelHot();
        break;
    case WM_ENABLE:
        invalidate();
        break;
    case WM_LBUTTONDBLCLK:
        ::PostMessageW(window, WM_LBUTTONDOWN, wParam, lParam); // acts as a second click
        break;
    case WM_MOUSEMOVE:
        if (m_themes && trackPointer()) {
            return 0;
        }
        break;
    case WM_THEMECHANGED:
        askTheme();
        invalidate();
        break;
    case WM_ERASEBKGND:
        return TRUE; // Draw covers everything
    default:
        break;
    }
    return callSavedProcedure(window, message, wParam, lParam);
}

/// Answers whether the message is consumed.
bool UIBitmapButtonControl::trackPointer()
{
    if (::GetActiveWindow() == nullptr) {
        const bool wasHot = m_hot;
        if (wasHot) {
            cancelHot();
        }
        return wasHot;
    }
    if (m_hot || ::GetKeyState(VK_LBUTTON) < 0) {
        return false;
    }
    m_hot = true;
    invalidate();
    TRACKMOUSEEVENT leave{sizeof leave, TME_LEAVE, getHwnd(), 0};
    ::TrackMouseEvent(&leave);
    return true;
}

void UIBitmapButtonControl::cancelHot()
{
    m_hot = false;
    invalidate();
}

void UIBitmapButtonControl::invalidate() const
{
    RECT area{};
    ::GetClientRect(getHwnd(), &area);
    ::InflateRect(&area, 1, 1);
    repaint(true, &area);
}

void UIBitmapButtonControl::Draw(DRAWITEMSTRUCT* item)
{
    const bool isDisabled = (item->itemState & ODS_DISABLED) != 0;
    const bool isSelected = (item->itemState & ODS_SELECTED) != 0;
    const o7::PaintBuffer buffer(item->hDC, item->rcItem);
    if (m_themes) {
        drawThemed(*item, buffer.dc());
    } else {
        drawClassic(*item, buffer.dc());
    }
    DrawBitmap(buffer.dc(), isDisabled ? m_disabled.bitmap.get() : m_normal.bitmap.get(),
               isSelected ? 1 : 0);
    if ((item->itemState & ODS_FOCUS) != 0) {
        RECT focus = item->rcItem;
        ::InflateRect(&focus, -kFocusInset, -kFocusInset);
        ::DrawFocusRect(buffer.dc(), &focus);
    }
}

void UIBitmapButtonControl::drawThemed(const DRAWITEMSTRUCT& item, HDC dc) const
{
    o7::drawParentBackground(item.hwndItem, dc); // behind the round corners
    const Theme theme(*m_themes, item.hwndItem, L"BUTTON");
    if (!theme.draw(dc, BP_PUSHBUTTON, themeState(item.itemState, m_hot), item.rcItem)) {
        drawClassic(item, dc);
    }
}

void UIBitmapButtonControl::drawClassic(const DRAWITEMSTRUCT& item, HDC dc)
{
    RECT face = item.rcItem;
    ::FillRect(dc, &face, ::GetSysColorBrush(COLOR_3DFACE));
    if ((item.itemState & ODS_SELECTED) != 0) {
        DrawButtonPressed(dc, face);
    } else if ((item.itemState & ODS_DISABLED) == 0) {
        DrawButton(dc, face, (item.itemState & ODS_FOCUS) != 0);
    } else {
        ::DrawEdge(dc, &face, EDGE_RAISED, BF_RECT);
    }
}

void UIBitmapButtonControl::DrawButton(HDC dc, RECT face, bool hasFocus)
{
    if (hasFocus) {
        ::FrameRect(dc, &face, ::GetSysColorBrush(COLOR_WINDOWFRAME));
        ::InflateRect(&face, -1, -1);
    }
    drawCorner(dc, face, COLOR_3DHILIGHT, true);
    drawCorner(dc, face, COLOR_3DDKSHADOW, false);
    ::InflateRect(&face, -1, -1);
    drawCorner(dc, face, COLOR_3DSHADOW, false);
}

void UIBitmapButtonControl::DrawButtonPressed(HDC dc, const RECT& face)
{
    ::FrameRect(dc, &face, ::GetSysColorBrush(COLOR_WINDOWFRAME));
    RECT inner = face;
    ::InflateRect(&inner, -1, -1);
    ::FrameRect(dc, &inner, ::GetSysColorBrush(COLOR_3DSHADOW));
}

void UIBitmapButtonControl::DrawBitmap(HDC dc, HBITMAP bitmap, int drop)
{
    BITMAP size{};
    if (bitmap == nullptr || ::GetObjectW(bitmap, sizeof size, &size) == 0) {
        return;
    }
    const SIZE whole = getDimensionInPixels();
    const SIZE area = getTextAreaInPixels();
    UIImageUtility::TransStretchBlt(bitmap, dc, static_cast<DWORD>((whole.cx - area.cx) / 2),
                                    static_cast<DWORD>((whole.cy - area.cy) / 2 + drop),
                                    static_cast<DWORD>(size.bmWidth),
                                    static_cast<DWORD>(size.bmHeight), static_cast<DWORD>(area.cx),
                                    static_cast<DWORD>(area.cy));
}
