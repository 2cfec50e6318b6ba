#include "uicomboboxcontrol.h"

#include "cxstring.h"
#include "itemrecord.h"
#include "textmeasure.h"
#include "windowtext.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST |
                         CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
static_assert(kStyle == 0x50210213);

/// The longest text, with its end, that a list gives away.
constexpr int kItemTextLimit = 260;

/// Its width keeps the longest entry off the edge of the dropped list.
constexpr wchar_t kReferenceCharacter[] = L"M";

LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return ::SendMessageW(window, message, wParam, lParam);
}

WPARAM toIndex(int index)
{
    return static_cast<WPARAM>(static_cast<INT_PTR>(index));
}

/// The colours of an entry, as system colour numbers.
struct ItemColours
{
    int background;
    int text;
};

ItemColours coloursFor(bool isDisabled, bool isUnavailable, bool isSelected)
{
    if (isDisabled) {
        return {COLOR_BTNFACE, COLOR_GRAYTEXT};
    }
    if (isUnavailable) {
        return {COLOR_WINDOW, COLOR_GRAYTEXT};
    }
    return isSelected ? ItemColours{COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT}
                      : ItemColours{COLOR_WINDOW, COLOR_WINDOWTEXT};
}

void drawItemText(const DRAWITEMSTRUCT& item, const CXString& text, int colour)
{
    RECT area = item.rcItem;
    ::InflateRect(&area, -::GetSystemMetrics(SM_CXEDGE), 0);
    const bool isRightToLeft =
        (::GetWindowLongPtrW(item.hwndItem, GWL_EXSTYLE) & WS_EX_RTLREADING) != 0;
    const COLORREF formerColour = ::SetTextColor(item.hDC, ::GetSysColor(colour));
    const int formerMode = ::SetBkMode(item.hDC, TRANSPARENT);
    ::DrawTextW(item.hDC, text.c_str(), text.GetLength(), &area,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS |
                    (isRightToLeft ? DT_RTLREADING : 0U));
    ::SetBkMode(item.hDC, formerMode);
    ::SetTextColor(item.hDC, formerColour);
}

} // namespace

UIComboBoxControl::UIComboBoxControl(HWND parent, int id, UIServices& services, HFONT font,
                                     POINT location, SIZE size)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(L"COMBOBOX", kStyle);
    HWND window = UIControl::getHwnd();
    const o7::TextMeasure measure(font);
    const LPARAM height = measure.fontHeight();
    send(window, CB_SETITEMHEIGHT, toIndex(-1), height);
    send(window, CB_SETITEMHEIGHT, 0, height);
    m_margin = measure.measure(kReferenceCharacter).cx;
    m_widestItem = static_cast<int>(send(window, CB_GETDROPPEDWIDTH));
    m_droppedWidth = m_widestItem;
    m_minVisible = static_cast<int>(send(window, CB_GETMINVISIBLE));
    subclassWindow(window);
}

UIComboBoxControl::~UIComboBoxControl()
{
    restoreProcedure();
}

bool UIComboBoxControl::handleMessage(const _UIWindowsMessage& message)
{
    if (message.message != WM_DRAWITEM) {
        return false;
    }
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
    if (item.hwndItem != getHwnd()) {
        return false;
    }
    draw(item);
    message.result = TRUE;
    return true;
}

int UIComboBoxControl::getSelection(bool allowNone)
{
    const int selection = static_cast<int>(send(getHwnd(), CB_GETCURSEL));
    return selection < 0 && !allowNone ? 0 : selection;
}

int UIComboBoxControl::getCount()
{
    return std::max(0, static_cast<int>(send(getHwnd(), CB_GETCOUNT)));
}

CXString UIComboBoxControl::getItemText(int index)
{
    const CXString text = textOf(index);
    return text.GetLength() + 1 < kItemTextLimit ? text : CXString();
}

ItemRecord* UIComboBoxControl::getItemData(int index)
{
    return recordOf(index);
}

int UIComboBoxControl::findItemById(int id)
{
    const int count = getCount();
    for (int index = 0; index < count; ++index) {
        const ItemRecord* record = getItemData(index);
        if (record != nullptr && record->id == id) {
            return index;
        }
    }
    return -1;
}

bool UIComboBoxControl::isItemAvailable(int index)
{
    const ItemRecord* record = getItemData(index);
    return record != nullptr && !record->unavailable;
}

void UIComboBoxControl::setSelection(int index)
{
    send(getHwnd(), CB_SETCURSEL, toIndex(index));
}

void UIComboBoxControl::setItemData(int index, ItemRecord* record)
{
    send(getHwnd(), CB_SETITEMDATA, toIndex(index), reinterpret_cast<LPARAM>(record));
}

void UIComboBoxControl::removeAllItems()
{
    send(getHwnd(), CB_RESETCONTENT);
}

void UIComboBoxControl::setItemUnavailable(bool unavailable, int index)
{
    ItemRecord* record = getItemData(index);
    if (record == nullptr || record->unavailable == unavailable) {
        return;
    }
    record->unavailable = unavailable;
    setItemData(index, record);
    ::InvalidateRect(getHwnd(), nullptr, TRUE);
}

int UIComboBoxControl::addItem(const CXString& text)
{
    const LRESULT index = send(getHwnd(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    if (index < 0) {
        return 0;
    }
    const int width = m_measure != nullptr ? m_measure->measure(text.View()).cx
                                           : o7::TextMeasure(itemFont()).measure(text.View()).cx;
    m_widestItem = std::max(m_widestItem, width + m_margin);
    if (m_measure == nullptr) {
        applyDroppedWidth(static_cast<int>(index) + 1);
    }
    return static_cast<int>(index);
}

void UIComboBoxControl::dump() const
{
    CXString grey;
    const auto count = static_cast<int>(send(getHwnd(), CB_GETCOUNT));
    for (int index = 0; index < count; ++index) {
        if (isGrey(index)) {
            grey += CXString::Formatted(grey.IsEmpty() ? L"grey \"%s\"" : L", \"%s\"",
                                        o7::oneLine(textOf(index)).c_str());
        }
    }
    dumpWindow(L"combo", grey);
}

void UIComboBoxControl::dump()
{
    std::as_const(*this).dump();
}

void UIComboBoxControl::draw(const DRAWITEMSTRUCT& item) const
{
    const bool isEmpty = item.itemID == static_cast<UINT>(-1);
    const auto* record = isEmpty ? nullptr : reinterpret_cast<const ItemRecord*>(item.itemData);
    const bool isUnavailable = record != nullptr && record->unavailable;
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
    const ItemColours colours =
        coloursFor((item.itemState & ODS_DISABLED) != 0, isUnavailable, isSelected);
    ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(colours.background));
    if (!isEmpty) {
        drawItemText(item, textOf(static_cast<int>(item.itemID)), colours.text);
    }
    const bool hasFocus = (item.itemState & ODS_FOCUS) != 0 || (isUnavailable && isSelected);
    if (hasFocus && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        ::DrawFocusRect(item.hDC, &item.rcItem);
    }
}

UIComboBoxControl::Fill::Fill(UIComboBoxControl& combo) : m_combo(combo)
{
    combo.m_measure = std::make_unique<o7::TextMeasure>(combo.itemFont());
}

UIComboBoxControl::Fill::~Fill()
{
    m_combo.m_measure.reset();
    m_combo.applyDroppedWidth(m_combo.getCount());
}

LRESULT UIComboBoxControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                   LPARAM lParam)
{
    if (message == WM_KEYDOWN && moveOverUnavailable(wParam)) {
        return 0;
    }
    return callSavedProcedure(window, message, wParam, lParam);
}

/// An arrow key in the closed list would stop before a run of grey entries, as choosing one of them
/// is refused; it passes over them instead. False when the window's own handling will do.
bool UIComboBoxControl::moveOverUnavailable(WPARAM key)
{
    const bool isForward = key == VK_DOWN || key == VK_RIGHT;
    if ((!isForward && key != VK_UP && key != VK_LEFT) ||
        send(getHwnd(), CB_GETDROPPEDSTATE) != FALSE) {
        return false;
    }
    const int step = isForward ? 1 : -1;
    const int first = getSelection(true) + step;
    int index = first;
    while (index >= 0 && index < getCount() && isGrey(index)) {
        index += step;
    }
    if (index == first) {
        return false;
    }
    if (index >= 0 && index < getCount()) {
        select(index);
    }
    return true;
}

/// Selects as the user does: with the notifications that the window itself would send.
void UIComboBoxControl::select(int index)
{
    setSelection(index);
    for (const int notification : {CBN_SELENDOK, CBN_SELCHANGE}) {
        send(getParentHwnd(), WM_COMMAND, MAKEWPARAM(getId(), notification),
             reinterpret_cast<LPARAM>(getHwnd()));
    }
}

CXString UIComboBoxControl::textOf(int index) const
{
    CXString text;
    const int length = static_cast<int>(send(getHwnd(), CB_GETLBTEXTLEN, toIndex(index)));
    if (length > 0) {
        wchar_t* buffer = text.GetBuffer(length);
        text.ReleaseBuffer(static_cast<int>(
            send(getHwnd(), CB_GETLBTEXT, toIndex(index), reinterpret_cast<LPARAM>(buffer))));
    }
    return text;
}

ItemRecord* UIComboBoxControl::recordOf(int index) const
{
    const LRESULT data = send(getHwnd(), CB_GETITEMDATA, toIndex(index));
    return data == CB_ERR ? nullptr : reinterpret_cast<ItemRecord*>(data);
}

bool UIComboBoxControl::isGrey(int index) const
{
    const ItemRecord* record = recordOf(index);
    return record != nullptr && record->unavailable;
}

HFONT UIComboBoxControl::itemFont() const
{
    return reinterpret_cast<HFONT>(send(getHwnd(), WM_GETFONT));
}

void UIComboBoxControl::applyDroppedWidth(int count)
{
    const int scrollBar = count > m_minVisible ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    const int width = m_widestItem + scrollBar;
    if (width != m_droppedWidth) {
        send(getHwnd(), CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width));
        m_droppedWidth = width;
    }
}
