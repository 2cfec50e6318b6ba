#include "uientrylistcontrol.h"

#include "entrydrawing.h"
#include "itemrecord.h"
#include "textmeasure.h"
#include "uitooltips.h"
#include "uiwindowsmessage.h"
#include "windowtext.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace {

/// The longest text, with its end, that a list gives away.
constexpr int kItemTextLimit = 260;

} // namespace

UIEntryListControl::UIEntryListControl(HWND parent, int id, UIServices& services, HFONT font,
                                       POINT location, SIZE size,
                                       const o7::EntryListMessages& messages)
    : UIControl(parent, id, services, font, location, size, false), m_messages(messages)
{
}

UIEntryListControl::~UIEntryListControl()
{
    hideReason();
    restoreProcedure();
}

bool UIEntryListControl::handleMessage(const _UIWindowsMessage& message)
{
    const DRAWITEMSTRUCT* item = itemToDraw(message);
    if (item == nullptr) {
        return false;
    }
    draw(*item);
    message.result = TRUE;
    return true;
}

int UIEntryListControl::getSelection(bool allowNone)
{
    const int selection = static_cast<int>(send(m_messages.getSelection));
    return selection < 0 && !allowNone ? 0 : selection;
}

int UIEntryListControl::getCount()
{
    return std::max(0, static_cast<int>(send(m_messages.getCount)));
}

CXString UIEntryListControl::getItemText(int index)
{
    const CXString text = textOf(index);
    return text.GetLength() + 1 < kItemTextLimit ? text : CXString();
}

ItemRecord* UIEntryListControl::getItemData(int index)
{
    return recordOf(index);
}

int UIEntryListControl::findItemById(int id)
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

bool UIEntryListControl::isItemAvailable(int index)
{
    const ItemRecord* record = getItemData(index);
    return record != nullptr && !record->unavailable;
}

void UIEntryListControl::setSelection(int index)
{
    // What is out of range selects nothing, and says so only once.
    const int wanted = index >= 0 && index < getCount() ? index : -1;
    if (wanted != getSelection(true)) {
        send(m_messages.setSelection, toIndex(wanted));
    }
}

void UIEntryListControl::setItemData(int index, ItemRecord* record)
{
    send(m_messages.setData, toIndex(index), reinterpret_cast<LPARAM>(record));
}

void UIEntryListControl::removeAllItems()
{
    hideReason();
    if (getCount() > 0) {
        send(m_messages.reset);
    }
}

void UIEntryListControl::setItemUnavailable(bool unavailable, int index)
{
    ItemRecord* record = getItemData(index);
    if (record == nullptr || record->unavailable == unavailable) {
        return;
    }
    record->unavailable = unavailable;
    setItemData(index, record);
    if (m_hasReader) {
        tellReaders();
    }
    repaint(true);
    if (isOpen() && entryWindow() != getHwnd()) {
        ::InvalidateRect(entryWindow(), nullptr, TRUE);
    }
}

int UIEntryListControl::addItem(const CXString& text)
{
    return static_cast<int>(std::max<LRESULT>(0, appendText(text)));
}

void UIEntryListControl::dump()
{
    std::as_const(*this).dump();
}

void UIEntryListControl::draw(const DRAWITEMSTRUCT& item) const
{
    const bool isEmpty = item.itemID == static_cast<UINT>(-1);
    const auto* record = isEmpty ? nullptr : reinterpret_cast<const ItemRecord*>(item.itemData);
    o7::drawEntry(item, isEmpty ? CXString() : textOf(static_cast<int>(item.itemID)),
                  record != nullptr && record->unavailable);
}

void UIEntryListControl::setUnavailableReasons(UIToolTips* toolTips,
                                               std::function<CXString(int index)> reasonOf)
{
    hideReason();
    m_toolTips = toolTips;
    m_reasonOf = std::move(reasonOf);
}

LRESULT UIEntryListControl::send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessageW(UIControl::getHwnd(), message, wParam, lParam);
}

LRESULT UIEntryListControl::appendText(const CXString& text)
{
    // A null window answers 0, which would be the first entry.
    if (getHwnd() == nullptr) {
        return -1;
    }
    return send(m_messages.add, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

CXString UIEntryListControl::textOf(int index) const
{
    CXString text;
    const int length = static_cast<int>(send(m_messages.getTextLength, toIndex(index)));
    if (length > 0) {
        wchar_t* buffer = text.GetBuffer(length);
        text.ReleaseBuffer(static_cast<int>(
            send(m_messages.getText, toIndex(index), reinterpret_cast<LPARAM>(buffer))));
    }
    return text;
}

CXString UIEntryListControl::greyEntries() const
{
    CXString grey;
    const auto count = static_cast<int>(send(m_messages.getCount));
    for (int index = 0; index < count; ++index) {
        if (isGrey(index)) {
            grey += CXString::Formatted(grey.IsEmpty() ? L"grey \"%s\"" : L", \"%s\"",
                                        o7::oneLine(textOf(index)).c_str());
        }
    }
    return grey;
}

LRESULT UIEntryListControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                    LPARAM lParam)
{
    if (filterKeys(message, wParam)) {
        return 0;
    }
    return callSavedProcedure(window, message, wParam, lParam);
}

void UIEntryListControl::onAccessibilityMessage(UINT message) noexcept
{
    if (message == WM_GETOBJECT) {
        m_hasReader = true;
        o7::guarded<void>(kProcedureName, kSource, [this] { tellReaders(); });
    }
    UIControl::onAccessibilityMessage(message);
}

void UIEntryListControl::tellReaders()
{
    std::vector<LONG> grey;
    const int count = getCount();
    for (int index = 0; index < count; ++index) {
        if (isGrey(index)) {
            grey.push_back(index + 1);
        }
    }
    tellGreyEntries(std::move(grey));
}

bool UIEntryListControl::filterKeys(UINT message, WPARAM wParam)
{
    switch (message) {
    case WM_KEYDOWN:
        hideReason();
        return moveByKey(wParam);
    case WM_CHAR:
        return findTyped(static_cast<wchar_t>(wParam));
    default:
        return false;
    }
}

/// Moves the selection as the key would, over the entries that are grey. False when the window's
/// own handling will do.
bool UIEntryListControl::moveByKey(WPARAM key)
{
    const int current = getSelection(true);
    const int wanted = keyTarget(key, current);
    if (wanted < 0 || !isPassedOver(key, wanted)) {
        return false;
    }
    const bool isForward = wanted > current || key == VK_DOWN || key == VK_RIGHT;
    const int step = isForward ? 1 : -1;
    int target = availableBetween(wanted, isForward ? getCount() : -1, step);
    if (target < 0) {
        // Nothing beyond: what lies nearest on the way there.
        target = availableBetween(wanted - step, current, -step);
    }
    if (target >= 0 && target != current) {
        const o7::Mortal::Watch watch(m_life);
        select(target);
        if (!watch.isAlive()) {
            return true;
        }
    }
    const int passed = current + step;
    if (passed == wanted && passed != target && isOpen()) {
        showReason(passed);
    }
    return true;
}

/// Whether the window itself would go to an entry that cannot be taken. Where a page ends only it
/// knows.
bool UIEntryListControl::isPassedOver(WPARAM key, int wanted)
{
    return key == VK_NEXT || key == VK_PRIOR ? hasGreyEntries() : isGrey(wanted);
}

/// The entry that a key goes to while none is grey; -1 when it is no key that moves.
int UIEntryListControl::keyTarget(WPARAM key, int current)
{
    const int last = getCount() - 1;
    const int page = std::max(1, entriesPerPage() - 1);
    switch (key) {
    case VK_DOWN:
    case VK_RIGHT:
        return std::min(current + 1, last);
    case VK_UP:
    case VK_LEFT:
        return std::max(current - 1, std::min(0, last));
    case VK_NEXT:
        return std::min(current + page, last);
    case VK_PRIOR:
        return std::max(current - page, std::min(0, last));
    case VK_HOME:
        return std::min(0, last);
    case VK_END:
        return last;
    default:
        return -1;
    }
}

/// The first entry that can be taken, from one towards an end that does not count; -1 when none.
int UIEntryListControl::availableBetween(int from, int end, int step) const
{
    for (int index = from; (end - index) * step > 0; index += step) {
        if (!isGrey(index)) {
            return index;
        }
    }
    return -1;
}

/// Goes to the next entry that begins with what has been typed and can be taken.
bool UIEntryListControl::findTyped(wchar_t character)
{
    constexpr wchar_t kDelete = 0x7F;
    const DWORD now = ::GetTickCount();
    if (character < L' ' || character == kDelete ||
        (character == L' ' && m_typeAhead.isFreshAt(now))) {
        return false;
    }
    hideReason();
    m_typeAhead.add(character, now);
    const int current = getSelection(true);
    const int start = m_typeAhead.mayStay() && current >= 0 ? current - 1 : current;
    const int found = findAvailable(CXString(m_typeAhead.sought()), start);
    if (found >= 0 && found != current) {
        select(found);
    }
    return true;
}

/// The search goes round, from the entry behind the start to the start itself.
int UIEntryListControl::findAvailable(const CXString& beginning, int start) const
{
    int first = -1;
    for (int at = start;;) {
        at = static_cast<int>(
            send(m_messages.find, toIndex(at), reinterpret_cast<LPARAM>(beginning.c_str())));
        if (at < 0 || at == first) {
            return -1;
        }
        if (!isGrey(at)) {
            return at;
        }
        if (first < 0) {
            first = at;
        }
    }
}

void UIEntryListControl::select(int index)
{
    setSelection(index);
    notifySelected();
}

bool UIEntryListControl::filterPointing(HWND list, UINT message, LPARAM lParam)
{
    switch (message) {
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP: {
        const int index = entryAt(list, lParam);
        pointAt(list, lParam, index);
        return index >= 0 && isGrey(index);
    }
    case WM_WINDOWPOSCHANGED:
        if ((reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_HIDEWINDOW) != 0) {
            hideReason();
        }
        return false;
    case WM_MOUSELEAVE:
    case WM_VSCROLL:
    case WM_MOUSEWHEEL:
        hideReason();
        return false;
    default:
        return false;
    }
}

/// A move that goes nowhere is none: Windows sends one whenever a window appears, and the reason of
/// an entry that a key has passed over would go with it.
void UIEntryListControl::pointAt(HWND list, LPARAM position, int index)
{
    if (position == m_pointed) {
        return;
    }
    m_pointed = position;
    if (index < 0 || !(isGrey(index) || isCut(index))) {
        hideReason();
        return;
    }
    showReason(index);
    TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, list, 0};
    ::TrackMouseEvent(&leaving);
}

/// The entry under a point of the list; -1 when there is none.
int UIEntryListControl::entryAt(HWND list, LPARAM position) const
{
    const POINT point{GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    RECT client{};
    ::GetClientRect(list, &client);
    if (::PtInRect(&client, point) == FALSE) {
        return -1;
    }
    // All are of one height. The window itself would answer with 16 bits.
    const auto height = static_cast<int>(::SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
    const auto top = static_cast<int>(::SendMessageW(list, LB_GETTOPINDEX, 0, 0));
    const auto count = static_cast<int>(::SendMessageW(list, LB_GETCOUNT, 0, 0));
    const int index = height > 0 ? top + point.y / height : -1;
    return index < count ? index : -1;
}

/// Whether the entry is drawn with an ellipsis in place of its end.
bool UIEntryListControl::isCut(int index) const
{
    const HWND list = entryWindow();
    RECT room{};
    ::GetClientRect(list, &room);
    ::InflateRect(&room, -::GetSystemMetrics(SM_CXEDGE), 0); // as it is drawn
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(list, WM_GETFONT, 0, 0));
    return o7::TextMeasure(font).measure(textOf(index).View()).cx > room.right - room.left;
}

CXString UIEntryListControl::tipFor(int index) const
{
    CXString reason = isGrey(index) ? m_reasonOf(index) : CXString();
    if (!isCut(index)) {
        return reason;
    }
    return reason.IsEmpty() ? textOf(index) : textOf(index) + L"\n" + reason;
}

void UIEntryListControl::showReason(int index)
{
    if (index == m_reasonIndex || m_toolTips == nullptr || !m_reasonOf) {
        return;
    }
    hideReason();
    const CXString reason = tipFor(index);
    if (reason.IsEmpty()) {
        return;
    }
    const HWND list = entryWindow();
    RECT entry{};
    RECT window{};
    ::SendMessageW(list, LB_GETITEMRECT, toIndex(index), reinterpret_cast<LPARAM>(&entry));
    ::MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&entry), 2);
    ::GetWindowRect(list, &window);
    m_toolTips->showBeside(list, {window.left, entry.top, window.right, entry.bottom}, reason);
    m_reasonList = list;
    m_reasonIndex = index;
}

void UIEntryListControl::hideReason()
{
    if (m_reasonIndex >= 0) {
        m_reasonIndex = -1;
        m_toolTips->hidePlaced(m_reasonList);
    }
}

int UIEntryListControl::entriesPerPage() const
{
    RECT client{};
    ::GetClientRect(entryWindow(), &client);
    const auto height = static_cast<int>(::SendMessageW(entryWindow(), LB_GETITEMHEIGHT, 0, 0));
    return height > 0 ? client.bottom / height : 0;
}

ItemRecord* UIEntryListControl::recordOf(int index) const
{
    const LRESULT data = send(m_messages.getData, toIndex(index));
    return data == CB_ERR ? nullptr : reinterpret_cast<ItemRecord*>(data);
}

bool UIEntryListControl::isGrey(int index) const
{
    const ItemRecord* record = recordOf(index);
    return record != nullptr && record->unavailable;
}

bool UIEntryListControl::hasGreyEntries()
{
    const int count = getCount();
    for (int index = 0; index < count; ++index) {
        if (isGrey(index)) {
            return true;
        }
    }
    return false;
}
