#include "uicomboboxcontrol.h"

#include "droppedlist.h"
#include "textmeasure.h"

#include <commctrl.h>

#include <algorithm>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST |
                         CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
static_assert(kStyle == 0x50210213);

/// Its width keeps the longest entry off the edge of the dropped list.
constexpr wchar_t kReferenceCharacter[] = L"M";

constexpr o7::EntryListMessages kMessages = {
    CB_GETCURSEL,   CB_SETCURSEL,   CB_GETCOUNT,  CB_GETLBTEXT,    CB_GETLBTEXTLEN,
    CB_GETITEMDATA, CB_SETITEMDATA, CB_ADDSTRING, CB_RESETCONTENT, CB_FINDSTRING};

} // namespace

UIComboBoxControl::UIComboBoxControl(HWND parent, int id, UIServices& services, HFONT font,
                                     POINT location, SIZE size)
    : UIEntryListControl(parent, id, services, font, location, size, kMessages)
{
    setVisibleFlag(true);
    createControlWindow(L"COMBOBOX", kStyle);
    const o7::TextMeasure measure(font);
    const LPARAM height = measure.fontHeight();
    // Each change moves the window's parts about, which costs as much as a window.
    for (const int part : {-1, 0}) {
        if (send(CB_GETITEMHEIGHT, toIndex(part)) != height) {
            send(CB_SETITEMHEIGHT, toIndex(part), height);
        }
    }
    m_margin = measure.measure(kReferenceCharacter).cx;
    m_widestItem = static_cast<int>(send(CB_GETDROPPEDWIDTH));
    m_droppedWidth = m_widestItem;
    m_minVisible = static_cast<int>(send(CB_GETMINVISIBLE));
    subclassWindow(UIControl::getHwnd());
}

UIComboBoxControl::~UIComboBoxControl() = default;

int UIComboBoxControl::addItem(const CXString& text)
{
    const LRESULT index = appendText(text);
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
    dumpWindow(L"combo", greyEntries());
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

HWND UIComboBoxControl::entryWindow() const
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    return ::GetComboBoxInfo(getHwnd(), &info) != FALSE ? info.hwndList : nullptr;
}

bool UIComboBoxControl::isOpen() const
{
    return send(CB_GETDROPPEDSTATE) != FALSE;
}

int UIComboBoxControl::entriesPerPage() const
{
    // A list that was never open has no height yet.
    return isOpen() ? UIEntryListControl::entriesPerPage() : m_minVisible;
}

void UIComboBoxControl::notifySelected()
{
    constexpr int kNotifications[] = {CBN_SELENDOK, CBN_SELCHANGE};
    for (const int notification : kNotifications) {
        ::SendMessageW(getParentHwnd(), WM_COMMAND, MAKEWPARAM(getId(), notification),
                       reinterpret_cast<LPARAM>(getHwnd()));
    }
}

LRESULT UIComboBoxControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                   LPARAM lParam)
{
    // The list asks for its colours before it is seen for the first time.
    if (message == WM_CTLCOLORLISTBOX && m_droppedList == nullptr) {
        m_droppedList = std::make_unique<o7::DroppedList>(*this, reinterpret_cast<HWND>(lParam));
    }
    return UIEntryListControl::subclassWindowProcedure(window, message, wParam, lParam);
}

HFONT UIComboBoxControl::itemFont() const
{
    return reinterpret_cast<HFONT>(send(WM_GETFONT));
}

void UIComboBoxControl::applyDroppedWidth(int count)
{
    const int scrollBar = count > m_minVisible ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    const int width = m_widestItem + scrollBar;
    if (width != m_droppedWidth) {
        send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width));
        m_droppedWidth = width;
    }
}
