#include "uicomboboxcontrol.h"

#include "droppedlist.h"
#include "textmeasure.h"
#include "tipplacement.h"
#include "uitooltips.h"
#include "windowtext.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST |
                         CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
static_assert(kStyle == 0x50210213);

constexpr LONG kDrawnWider =
    50; // some displays draw wider than they measure: one part of that many

/// Its width keeps the longest entry off the edge of the dropped list.
constexpr wchar_t kReferenceCharacter[] = L"M";

constexpr o7::EntryListMessages kMessages = {
    CB_GETCURSEL,   CB_SETCURSEL,   CB_GETCOUNT,  CB_GETLBTEXT,    CB_GETLBTEXTLEN,
    CB_GETITEMDATA, CB_SETITEMDATA, CB_ADDSTRING, CB_RESETCONTENT, CB_FINDSTRING};

/// A combo box would paint itself anew with its font and with each height. It paints once, later.
class PaintLater
{
public:
    PaintLater(HWND parent, HWND window) : m_parent(parent), m_window(window)
    {
        ::SendMessageW(m_window, WM_SETREDRAW, FALSE, 0);
    }
    ~PaintLater()
    {
        ::SendMessageW(m_window, WM_SETREDRAW, TRUE, 0);
        // Without a window the system would take the desktop for it.
        if (m_window != nullptr && (::GetWindowLongPtrW(m_parent, GWL_STYLE) & WS_VISIBLE) != 0) {
            ::InvalidateRect(m_window, nullptr, TRUE);
        }
    }
    PaintLater(const PaintLater&) = delete;
    PaintLater& operator=(const PaintLater&) = delete;

private:
    HWND m_parent;
    HWND m_window;
};

} // namespace

UIComboBoxControl::UIComboBoxControl(HWND parent, int id, UIServices& services, HFONT font,
                                     POINT location, SIZE size)
    : UIEntryListControl(parent, id, services, font, location, size, kMessages)
{
    setVisibleFlag(true);
    createBareWindow(L"COMBOBOX", kStyle);
    subclassWindow(UIControl::getHwnd());
    const o7::TextMeasure measure(font);
    {
        const PaintLater paintLater(parent, UIControl::getHwnd());
        m_keepsSize = true; // the font would change it, and the height of the field once more
        giveFont();
        m_keepsSize = false;
        setItemHeight(-1, measure.fontHeight());
        setItemHeight(0, measure.fontHeight());
    }
    m_margin = measure.measure(kReferenceCharacter).cx;
    m_widestItem = static_cast<int>(send(CB_GETDROPPEDWIDTH));
    m_droppedWidth = m_widestItem;
    m_minVisible = static_cast<int>(send(CB_GETMINVISIBLE));
}

UIComboBoxControl::~UIComboBoxControl()
{
    if (toolTips() != nullptr && getHwnd() != nullptr) {
        toolTips()->setTip(getHwnd(), {});
    }
}

int UIComboBoxControl::addItem(const CXString& text)
{
    const LRESULT index = appendText(text);
    if (index < 0) {
        return 0;
    }
    if (m_measure == nullptr) {
        m_measure = std::make_unique<o7::TextMeasure>(itemFont());
    }
    m_widestText = std::max(m_widestText, static_cast<int>(m_measure->measure(text.View()).cx));
    m_widestItem = std::max(m_widestItem, m_widestText + m_margin);
    if (!m_isFilling) {
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
    combo.m_isFilling = true;
}

UIComboBoxControl::Fill::~Fill()
{
    m_combo.m_isFilling = false;
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

/// They are parts of the list that drops, not of the field.
void UIComboBoxControl::tellGreyEntries(std::vector<LONG> entries)
{
    if (m_droppedList != nullptr) {
        m_droppedList->tellGreyEntries(std::move(entries));
    }
}

void UIComboBoxControl::notifySelected()
{
    constexpr int kNotifications[] = {CBN_SELENDOK, CBN_SELCHANGE};
    const o7::Mortal::Watch watch(life());
    for (const int notification : kNotifications) {
        if (watch.isAlive()) {
            ::SendMessageW(getParentHwnd(), WM_COMMAND, MAKEWPARAM(getId(), notification),
                           reinterpret_cast<LPARAM>(getHwnd()));
        }
    }
}

LRESULT UIComboBoxControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                   LPARAM lParam)
{
    if (m_keepsSize && message == WM_WINDOWPOSCHANGING) {
        reinterpret_cast<WINDOWPOS*>(lParam)->flags |= SWP_NOSIZE;
        return 0;
    }
    // The list asks for its colours before it is seen for the first time.
    if (message == WM_CTLCOLORLISTBOX && m_droppedList == nullptr && lParam != 0 &&
        reinterpret_cast<HWND>(lParam) == entryWindow()) { // anybody can name any window
        m_droppedList = std::make_unique<o7::DroppedList>(*this, entryWindow());
    }
    if (message == WM_PAINT || message == WM_SETFONT) {
        m_measure.reset();
    }
    if (message == WM_SETCURSOR) {
        tipWhatIsCut();
    }
    if (message == WM_MOUSEWHEEL && !isOpen()) {
        // Over a list that nobody works with, the wheel is meant for what lies around it.
        return ::GetFocus() == window && turnWheel(wParam)
                   ? 0
                   : ::DefWindowProcW(window, message, wParam, lParam);
    }
    return UIEntryListControl::subclassWindowProcedure(window, message, wParam, lParam);
}

/// When the mouse comes over the field, a choice that it cannot show whole gets a tip that does.
void UIComboBoxControl::tipWhatIsCut() const
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (toolTips() == nullptr || ::GetComboBoxInfo(getHwnd(), &info) == FALSE) {
        return;
    }
    const LONG room = info.rcItem.right - info.rcItem.left - 2 * ::GetSystemMetrics(SM_CXEDGE);
    if (m_widestText + m_widestText / kDrawnWider <= room) {
        return;
    }
    const CXString shown = o7::windowText(getHwnd());
    const LONG needed = o7::TextMeasure(itemFont()).measure(shown.View()).cx;
    toolTips()->setTip(getHwnd(), needed + needed / kDrawnWider > room ? shown : CXString());
}

/// Over a closed list the wheel goes on as the arrow keys do, and so passes over grey entries.
bool UIComboBoxControl::turnWheel(WPARAM wParam)
{
    if ((GET_KEYSTATE_WPARAM(wParam) & (MK_SHIFT | MK_CONTROL)) != 0) {
        return false;
    }
    // Fine wheels turn by less than an entry at a time.
    m_wheel += GET_WHEEL_DELTA_WPARAM(wParam);
    const int entries = m_wheel / WHEEL_DELTA;
    m_wheel %= WHEEL_DELTA;
    const o7::Mortal::Watch watch(life());
    for (int turned = 0; turned < std::abs(entries) && watch.isAlive(); ++turned) {
        send(WM_KEYDOWN, entries > 0 ? VK_UP : VK_DOWN);
    }
    return true;
}

/// Each change moves the parts of the window about.
void UIComboBoxControl::setItemHeight(int part, int height) const
{
    if (send(CB_GETITEMHEIGHT, toIndex(part)) != height) {
        send(CB_SETITEMHEIGHT, toIndex(part), height);
    }
}

HFONT UIComboBoxControl::itemFont() const
{
    return reinterpret_cast<HFONT>(send(WM_GETFONT));
}

void UIComboBoxControl::applyDroppedWidth(int count)
{
    const int scrollBar = count > m_minVisible ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    const RECT screen = o7::workAreaOf(getHwnd());
    const int width =
        std::min(m_widestItem + scrollBar, static_cast<int>(screen.right - screen.left));
    if (width != m_droppedWidth) {
        send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width));
        m_droppedWidth = width;
    }
}
