#include "uilistviewcontrol.h"

#include "cxstring.h"
#include "dialogconversion.h"
#include "textmeasure.h"
#include "uidump.h"
#include "uiwindowsmessage.h"
#include "windowtext.h"

#include <windowsx.h>

#include <commctrl.h>

#include <algorithm>

namespace {

/// What the window keeps free on each side of a cell's text, as parts of the edge's width.
constexpr int kCellMarginInEdges = 3;

CXString quoted(const CXString& text)
{
    return CXString::Formatted(L" \"%s\"", o7::oneLine(text).c_str());
}

} // namespace

UIListViewControl::UIListViewControl(HWND parent, int id, UIServices& services, HFONT font,
                                     POINT location, SIZE size, DWORD style, UIToolTips& toolTips)
    : UIControl(parent, id, services, font, location, size, false), m_tip(toolTips)
{
    setVisibleFlag(true);
    createControlWindow(listViewClass(), listViewStyle(style));
    if (getHwnd() != nullptr) {
        attachListView(getHwnd());
        subclassWindow(getHwnd());
    }
}

UIListViewControl::~UIListViewControl()
{
    hideTip();
    detachListView();
    restoreProcedure();
}

bool UIListViewControl::handleMessage(const _UIWindowsMessage& message)
{
    LRESULT result = 0;
    if (!processWindowsMessage(message.message, message.wParam, message.lParam, result)) {
        return false;
    }
    if (message.kind == UIMessageKind::TabPage && message.message == WM_NOTIFY) {
        // What a page answers to a notification counts as a yes; the answer itself stands here.
        ::SetWindowLongPtrW(message.window, DWLP_MSGRESULT, result);
        result = TRUE;
    }
    message.result = result;
    return true;
}

void UIListViewControl::dump() const
{
    if (!UIDump::isCollecting()) {
        return;
    }
    const o7::ListRows& rows = getRows();
    dumpWindow(L"list view", CXString::Formatted(L"%d rows", rows.count()));
    const UIDump::Level level;
    CXString titles(L"columns");
    for (std::size_t i = 0; i < rows.columns().size(); ++i) {
        titles += quoted(rows.columns()[i].title);
        if (rows.order().column == static_cast<int>(i)) {
            titles += rows.order().isDescending ? L" descending" : L" ascending";
        }
    }
    UIDump::line(titles.View());
    std::vector<int> selected = getSelectedRows();
    std::sort(selected.begin(), selected.end());
    for (int index = 0; index < rows.count(); ++index) {
        const o7::ListRow& row = *rows.at(index);
        CXString line = CXString::Formatted(L"row %d", row.id);
        for (const CXString& text : row.texts) {
            line += quoted(text);
        }
        const bool isSelected = std::binary_search(selected.begin(), selected.end(), row.id);
        line += isSelected ? L" selected" : L"";
        line += row.isChecked ? L" checked" : L"";
        line += row.isUnavailable ? L" unavailable" : L"";
        UIDump::line(line.View());
    }
}

CXString UIListViewControl::createToolTipText(int row)
{
    CXString tip;
    const o7::TextMeasure measure(getParentFont());
    const int margins = 2 * kCellMarginInEdges * ::GetSystemMetrics(SM_CXEDGE);
    const auto columns = static_cast<int>(getRows().columns().size());
    for (int column = 0; column < columns; ++column) {
        const CXString text = getRows().text(row, column);
        const RECT area = labelArea(row, column);
        if (measure.measure(text.View()).cx + margins > area.right - area.left) {
            tip += tip.IsEmpty() || text.IsEmpty() ? L"" : L"\r\n";
            tip += text;
        }
    }
    return tip;
}

void UIListViewControl::setEnableTooltips(bool enable)
{
    m_hasTips = enable;
    hideTip();
    // The window's own tips would show beside ours.
    HWND ownTips = reinterpret_cast<HWND>(::SendMessageW(getHwnd(), LVM_SETTOOLTIPS, 0, 0));
    if (ownTips != nullptr) {
        ::DestroyWindow(ownTips);
    }
}

void UIListViewControl::setColumnsInDialogUnits(std::vector<o7::ListColumn> columns)
{
    for (o7::ListColumn& column : columns) {
        column.width = getConversion().dialogUnitsToPixels(SIZE{column.width, 0}).cx;
    }
    setColumns(columns);
}

void UIListViewControl::forgetWindow() noexcept
{
    hideTip();
    detachListView();
    UIControl::forgetWindow();
}

LRESULT UIListViewControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                   LPARAM lParam)
{
    switch (message) {
    case WM_GETDLGCODE:
        if (wantsMessage(reinterpret_cast<const MSG*>(lParam))) {
            return callSavedProcedure(window, message, wParam, lParam) | DLGC_WANTMESSAGE;
        }
        break;
    case WM_KEYDOWN:
        return keyDown(window, message, wParam, lParam);
    case WM_CHAR:
        if (wParam == L' ' && hasCheckBoxes()) {
            return 0; // no text to search for
        }
        break;
    case WM_SIZE: {
        const LRESULT result = callSavedProcedure(window, message, wParam, lParam);
        fitColumns();
        return result;
    }
    case WM_ENABLE:
    case WM_SYSCOLORCHANGE: {
        const LRESULT result = callSavedProcedure(window, message, wParam, lParam);
        showGround();
        return result;
    }
    case WM_MOUSEMOVE:
        mouseMoved({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        break;
    case WM_MOUSEHOVER:
        mouseRested({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        return 0;
    case WM_MOUSELEAVE:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_KILLFOCUS:
    case LVM_SETITEMCOUNT: // the row may stand elsewhere now, or say something else
    case LVM_REDRAWITEMS:
        hideTip();
        break;
    default:
        break;
    }
    return callSavedProcedure(window, message, wParam, lParam);
}

/// A disabled list has the ground of its page, as other disabled fields do.
void UIListViewControl::showGround() const
{
    const int colour = ::IsWindowEnabled(getHwnd()) != FALSE ? COLOR_WINDOW : COLOR_BTNFACE;
    const auto ground = static_cast<LPARAM>(::GetSysColor(colour));
    for (const UINT message : {LVM_SETBKCOLOR, LVM_SETTEXTBKCOLOR}) {
        ::SendMessageW(getHwnd(), message, 0, ground);
    }
    repaint(true);
}

/// A key that moves the focus to another row shows that row's tip, as resting on it does.
LRESULT UIListViewControl::keyDown(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (wParam == VK_SPACE && hasCheckBoxes()) {
        // The window would also select this one row, and no other any more.
        pressKey(VK_SPACE);
        return 0;
    }
    const int before = focusedIndex();
    const o7::Mortal::Watch watch(m_life);
    const LRESULT result = callSavedProcedure(window, message, wParam, lParam);
    if (!watch.isAlive()) {
        return result;
    }
    const int after = focusedIndex();
    if (after != before) {
        showTip(after, labelArea(after, 0).left);
    } else {
        hideTip();
    }
    return result;
}

bool UIListViewControl::wantsMessage(const MSG* message) const
{
    return m_takesEnter && message != nullptr && message->message == WM_KEYDOWN &&
           message->wParam == VK_RETURN && getFocusedRow().has_value();
}

void UIListViewControl::mouseMoved(POINT place)
{
    // A tip that comes or goes makes the system tell where the mouse is, though it did not move:
    // that must not hide the tip which the keyboard has just called.
    const bool hasMoved = place.x != m_mouse.x || place.y != m_mouse.y;
    m_mouse = place;
    const int row = m_hasTips ? rowAt(place) : -1;
    if (!hasMoved || row == m_rowUnderMouse) {
        return;
    }
    TRACKMOUSEEVENT tracking{};
    tracking.cbSize = sizeof tracking;
    tracking.dwFlags = TME_HOVER | TME_LEAVE;
    tracking.hwndTrack = getHwnd();
    tracking.dwHoverTime = m_tip.restingTime();
    hideTip();
    m_rowUnderMouse = row;
    if (row >= 0) {
        ::TrackMouseEvent(&tracking);
    }
}

void UIListViewControl::mouseRested(POINT place)
{
    const int row = m_hasTips ? rowAt(place) : -1;
    if (row >= 0) {
        showTip(row, place.x);
    }
}

void UIListViewControl::hideTip() noexcept
{
    m_tip.hide();
    m_rowUnderMouse = -1;
}

void UIListViewControl::showTip(int row, int x)
{
    m_tip.hide();
    RECT area{};
    area.left = LVIR_BOUNDS;
    if (m_hasTips && row >= 0 &&
        ::SendMessageW(getHwnd(), LVM_GETITEMRECT, static_cast<WPARAM>(row),
                       reinterpret_cast<LPARAM>(&area)) != FALSE) {
        m_tip.show(getHwnd(), area, x, createToolTipText(row));
    }
}

int UIListViewControl::rowAt(POINT place) const
{
    LVHITTESTINFO hit{};
    hit.pt = place;
    return static_cast<int>(
        ::SendMessageW(getHwnd(), LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
}

int UIListViewControl::focusedIndex() const
{
    return static_cast<int>(
        ::SendMessageW(getHwnd(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
}

/// Where a cell's text has room, in pixels of the client area.
RECT UIListViewControl::labelArea(int row, int column) const
{
    RECT area{};
    area.left = LVIR_LABEL;
    area.top = column;
    ::SendMessageW(getHwnd(), LVM_GETSUBITEMRECT, static_cast<WPARAM>(static_cast<INT_PTR>(row)),
                   reinterpret_cast<LPARAM>(&area));
    return area;
}
