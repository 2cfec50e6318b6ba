// The half of ListViewBase that answers its window: what it asks for and what the user does.
#include "listviewbase.h"

#include <windows.h>
#include <windowsx.h>

#include <commctrl.h>

#include <algorithm>

namespace {

LRESULT notificationAs(bool taken) noexcept
{
    return taken ? TRUE : FALSE;
}

/// Wine draws into a buffer that has not the window's layout, so that mirrored lists come out in
/// mirror writing. On Windows the buffer has it already, and nothing is done here.
void mirrorAsWindow(HDC dc, HWND window) noexcept
{
    const bool isMirrored = (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
    if (!isMirrored || (::GetLayout(dc) & LAYOUT_RTL) != 0) {
        return;
    }
    // The clipping and the erased ground are where the area would be without mirroring.
    RECT area{};
    ::GetClipBox(dc, &area);
    ::SetLayout(dc, LAYOUT_RTL);
    ::SelectClipRgn(dc, nullptr);
    ::SetDCBrushColor(dc, static_cast<COLORREF>(::SendMessageW(window, LVM_GETBKCOLOR, 0, 0)));
    ::FillRect(dc, &area, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

} // namespace

bool ListViewBase::processWindowsMessage(const UINT message, const WPARAM wParam,
                                         const LPARAM lParam, LRESULT& result)
{
    if (m_window == nullptr) {
        return false;
    }
    if (message == WM_NOTIFY && lParam != 0) {
        return notified(lParam, result);
    }
    if (message == WM_CONTEXTMENU && reinterpret_cast<HWND>(wParam) == m_window &&
        contextMenuWanted(lParam)) {
        result = 0;
        return true;
    }
    return false;
}

bool ListViewBase::notified(LPARAM notification, LRESULT& result)
{
    const auto& header = *reinterpret_cast<const NMHDR*>(notification);
    if (header.hwndFrom != m_window) {
        return header.hwndFrom != nullptr && header.hwndFrom == headerWindow() &&
               headerNotified(header.code);
    }
    LRESULT answer = 0;
    switch (header.code) {
    case LVN_GETDISPINFOW:
        giveCell(*reinterpret_cast<NMLVDISPINFOW*>(notification));
        break;
    case LVN_ODFINDITEMW:
        answer = findRow(*reinterpret_cast<const NMLVFINDITEMW*>(notification));
        break;
    case NM_CUSTOMDRAW:
        answer = customDraw(*reinterpret_cast<NMLVCUSTOMDRAW*>(notification));
        break;
    case LVN_COLUMNCLICK:
        columnClicked(reinterpret_cast<const NMLISTVIEW*>(notification)->iSubItem);
        break;
    case NM_CLICK:
    case NM_DBLCLK:
        clicked(*reinterpret_cast<const NMITEMACTIVATE*>(notification), header.code == NM_DBLCLK);
        break;
    case LVN_KEYDOWN:
        answer =
            notificationAs(pressKey(reinterpret_cast<const NMLVKEYDOWN*>(notification)->wVKey));
        break;
    case NM_RETURN:
        activate(static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED)));
        break;
    case LVN_ITEMCHANGED: {
        const auto& change = *reinterpret_cast<const NMLISTVIEW*>(notification);
        statesChanged(change.uOldState, change.uNewState);
        break;
    }
    case LVN_ODSTATECHANGED: {
        const auto& change = *reinterpret_cast<const NMLVODSTATECHANGE*>(notification);
        statesChanged(change.uOldState, change.uNewState);
        break;
    }
    default:
        return false;
    }
    result = answer;
    return true;
}

/// The header's notifications come by way of the list. They are nobody's to claim.
bool ListViewBase::headerNotified(UINT code)
{
    if (code == HDN_ENDTRACKW || code == HDN_ENDTRACKA || code == HDN_DIVIDERDBLCLICKW ||
        code == HDN_DIVIDERDBLCLICKA) {
        m_hasFixedWidths = true;
        if (m_observer != nullptr) {
            m_observer->listLayoutChanged();
        }
    }
    return false;
}

void ListViewBase::giveCell(NMLVDISPINFOW& wanted) const
{
    LVITEMW& item = wanted.item;
    const o7::ListRow* row = m_rows.at(item.iItem);
    if ((item.mask & LVIF_TEXT) != 0) {
        const auto column = static_cast<std::size_t>(item.iSubItem);
        const bool hasText = row != nullptr && item.iSubItem >= 0 && column < row->texts.size();
        // Our own text, which stays while it is drawn: the window cuts its copy where it must.
        item.pszText = const_cast<wchar_t*>(hasText ? row->texts[column].c_str() : L"");
    }
    if ((item.mask & LVIF_STATE) != 0 && m_hasCheckBoxes) {
        item.state &= ~UINT{LVIS_STATEIMAGEMASK};
        item.state |= INDEXTOSTATEIMAGEMASK(row != nullptr && row->isChecked ? 2U : 1U);
    }
}

LRESULT ListViewBase::findRow(const NMLVFINDITEMW& wanted) const
{
    if ((wanted.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || wanted.lvfi.psz == nullptr) {
        return -1;
    }
    return m_rows.findByStart(wanted.lvfi.psz, wanted.iStart);
}

LRESULT ListViewBase::customDraw(NMLVCUSTOMDRAW& drawing) const
{
    if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) {
        mirrorAsWindow(drawing.nmcd.hdc, m_window);
        const bool wantsText = m_rows.count() == 0 && !m_emptyText.IsEmpty();
        return wantsText ? CDRF_NOTIFYPOSTPAINT : CDRF_NOTIFYITEMDRAW;
    }
    if (drawing.nmcd.dwDrawStage == CDDS_POSTPAINT) {
        drawEmptyText(drawing.nmcd.hdc);
    }
    if (drawing.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) {
        const o7::ListRow* row = m_rows.at(static_cast<int>(drawing.nmcd.dwItemSpec));
        const bool isUnavailable = row != nullptr && row->isUnavailable;
        if (isUnavailable || ::IsWindowEnabled(m_window) == FALSE) {
            // Grey is readable on the window's ground, not on that of the selection.
            drawing.nmcd.uItemState &= ~UINT{CDIS_SELECTED};
            drawing.clrText = ::GetSysColor(COLOR_GRAYTEXT);
        }
    }
    return CDRF_DODEFAULT;
}

/// Centred below the titles, at the height of a second row.
void ListViewBase::drawEmptyText(HDC dc) const
{
    RECT area{};
    ::GetClientRect(m_window, &area);
    RECT titles{};
    if (HWND header = headerWindow(); (::GetWindowLongPtrW(header, GWL_STYLE) & WS_VISIBLE) != 0) {
        ::GetClientRect(header, &titles);
    }
    TEXTMETRICW metrics{};
    const HGDIOBJ font = reinterpret_cast<HFONT>(send(WM_GETFONT));
    const HGDIOBJ formerFont = font != nullptr ? ::SelectObject(dc, font) : nullptr;
    ::GetTextMetricsW(dc, &metrics);
    area.top += titles.bottom + metrics.tmHeight;
    ::InflateRect(&area, -metrics.tmAveCharWidth, 0);
    const COLORREF formerColour = ::SetTextColor(dc, ::GetSysColor(COLOR_GRAYTEXT));
    const int formerMode = ::SetBkMode(dc, TRANSPARENT);
    ::DrawTextW(dc, m_emptyText.c_str(), m_emptyText.GetLength(), &area,
                DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
    ::SetBkMode(dc, formerMode);
    ::SetTextColor(dc, formerColour);
    if (formerFont != nullptr) {
        ::SelectObject(dc, formerFont);
    }
}

void ListViewBase::columnClicked(int column)
{
    const o7::ListOrder order = m_rows.orderAfterClick(column);
    if (order == m_rows.order()) {
        return;
    }
    {
        const Update update(*this);
        keepMarks();
        m_reveal = m_marks->focused;
        sortBy(order);
    }
    if (m_observer != nullptr) {
        m_observer->listLayoutChanged();
    }
}

void ListViewBase::clicked(const NMITEMACTIVATE& click, bool isDouble)
{
    LVHITTESTINFO hit{};
    hit.pt = click.ptAction;
    send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (m_hasCheckBoxes && hit.iItem >= 0 && hit.flags == LVHT_ONITEMSTATEICON) {
        // The second click of a quick pair is a click on the box as well.
        toggleChecks(hit.iItem);
    } else if (isDouble) {
        activate(click.iItem);
    }
}

bool ListViewBase::pressKey(UINT virtualKey)
{
    const int focused =
        static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    const bool toggles = virtualKey == VK_SPACE && m_hasCheckBoxes && focused >= 0;
    const bool selectsAll = virtualKey == L'A' && ::GetKeyState(VK_CONTROL) < 0 &&
                            ::GetKeyState(VK_MENU) >= 0 && !isForOneRow();
    const o7::Mortal::Watch watch(m_life);
    if (toggles) {
        toggleChecks(focused);
    } else if (selectsAll) {
        setRowState(-1, LVIS_SELECTED, LVIS_SELECTED);
    }
    const bool isTaken =
        watch.isAlive() && m_observer != nullptr && m_observer->listKeyPressed(virtualKey);
    return toggles || selectsAll || isTaken;
}

void ListViewBase::activate(int index)
{
    const std::optional<int> id = m_rows.idAt(index);
    if (id && m_observer != nullptr) {
        m_observer->listRowActivated(*id);
    }
}

/// Turns the check mark of a row, and gives the same to all selected rows when it is one of them.
void ListViewBase::toggleChecks(int index)
{
    const o7::ListRow* row = m_rows.at(index);
    if (row == nullptr) {
        return;
    }
    const int clicked = row->id;
    const bool isChecked = !row->isChecked;
    std::vector<int> ids = getSelectedRows();
    const o7::Mortal::Watch watch(m_life);
    if (std::find(ids.begin(), ids.end(), clicked) == ids.end()) {
        ids = {clicked};
    }
    std::erase_if(ids,
                  [&](int id) { return m_rows.at(m_rows.indexOf(id))->isChecked == isChecked; });
    {
        const Update update(*this);
        for (const int id : ids) {
            setRowChecked(id, isChecked);
        }
    }
    for (const int id : ids) {
        if (watch.isAlive() && m_observer != nullptr) {
            m_observer->listRowChecked(id, isChecked);
        }
    }
}

void ListViewBase::statesChanged(UINT oldState, UINT newState)
{
    if (!m_isSilent && ((oldState ^ newState) & LVIS_SELECTED) != 0 && m_observer != nullptr) {
        m_observer->listSelectionChanged();
    }
}

/// A position of -1 means that the menu was called from the keyboard.
bool ListViewBase::contextMenuWanted(LPARAM position)
{
    if (m_observer == nullptr) {
        return false;
    }
    POINT point{GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    int index = -1;
    if (position == -1) {
        index = static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
        RECT row{};
        row.left = LVIR_LABEL;
        if (index >= 0) {
            send(LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&row));
        }
        point = {index >= 0 ? row.left : 0, row.bottom};
        ::ClientToScreen(m_window, &point);
    } else {
        LVHITTESTINFO hit{};
        hit.pt = point;
        ::ScreenToClient(m_window, &hit.pt);
        index = static_cast<int>(send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    }
    m_observer->listContextMenuWanted(m_rows.idAt(index), point.x, point.y);
    return true;
}
