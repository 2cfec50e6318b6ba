#include "listviewbase.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <new>
#include <numeric>
#include <utility>

namespace {

constexpr DWORD kStyle =
    WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_OWNERDATA;
static_assert(kStyle == 0x50811009);
constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

/// In the order of the user's language, as its dictionaries have it.
int compareInUserLanguage(const CXString& a, const CXString& b)
{
    const int answer =
        ::CompareStringEx(LOCALE_NAME_USER_DEFAULT, LINGUISTIC_IGNORECASE, a.c_str(), a.GetLength(),
                          b.c_str(), b.GetLength(), nullptr, nullptr, 0);
    return answer != 0 ? answer - CSTR_EQUAL : o7::ListRows::compareTexts(a, b);
}

int columnFormat(o7::ListAlignment alignment)
{
    constexpr int kFormats[] = {LVCFMT_LEFT, LVCFMT_CENTER, LVCFMT_RIGHT};
    return kFormats[static_cast<std::size_t>(alignment)];
}

/// Sets a flag for the time of a scope, and then what it was before.
class FlagScope
{
public:
    explicit FlagScope(bool& flag) noexcept : m_flag(flag), m_former(std::exchange(flag, true)) {}
    ~FlagScope() { m_flag = m_former; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_flag;
    bool m_former;
};

} // namespace

ListViewBase::ListViewBase() noexcept : m_rows(&compareInUserLanguage)
{
}

const wchar_t* ListViewBase::listViewClass() noexcept
{
    return WC_LISTVIEWW;
}

std::uint32_t ListViewBase::listViewStyle(std::uint32_t given) noexcept
{
    return kStyle | given;
}

void ListViewBase::attachListView(HWND window)
{
    m_window = window;
    send(LVM_SETUNICODEFORMAT, TRUE);
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, kExtendedStyle, kExtendedStyle);
}

void ListViewBase::setColumns(const std::vector<o7::ListColumn>& columns)
{
    const std::size_t before = m_rows.columns().size();
    if (columns == m_rows.columns()) {
        return;
    }
    m_rows.setColumns(columns);
    m_hasFixedWidths = false;
    for (std::size_t i = 0; i < before; ++i) {
        send(LVM_DELETECOLUMN, 0);
    }
    int index = 0;
    for (const o7::ListColumn& column : columns) {
        LVCOLUMNW description{};
        description.mask = LVCF_FMT | LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        description.fmt = columnFormat(column.alignment);
        description.cx = column.width;
        description.pszText = const_cast<wchar_t*>(column.title.c_str());
        description.iSubItem = index;
        send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index++),
             reinterpret_cast<LPARAM>(&description));
    }
    fitColumns();
    showSortArrow();
}

std::vector<int> ListViewBase::getColumnWidths() const
{
    std::vector<int> widths;
    for (std::size_t i = 0; m_window != nullptr && i < m_rows.columns().size(); ++i) {
        widths.push_back(static_cast<int>(send(LVM_GETCOLUMNWIDTH, i)));
    }
    return widths;
}

bool ListViewBase::setColumnWidths(const std::vector<int>& widths)
{
    const bool isUsable =
        m_window != nullptr && !widths.empty() && widths.size() == m_rows.columns().size() &&
        std::all_of(widths.begin(), widths.end(), [](int width) { return width > 0; });
    if (isUsable) {
        m_hasFixedWidths = true;
        applyWidths(widths);
    }
    return isUsable;
}

void ListViewBase::fitColumns()
{
    RECT client{};
    if (!m_hasFixedWidths && ::GetClientRect(m_window, &client) != FALSE) {
        applyWidths(o7::columnWidths(m_rows.columns(), client.right));
    }
}

void ListViewBase::setRows(std::vector<o7::ListRow> rows)
{
    const Update update(*this);
    keepMarks();
    m_pending |= m_rows.setRows(std::move(rows));
}

bool ListViewBase::insertRow(o7::ListRow row, int place)
{
    const Update update(*this);
    keepMarks();
    const o7::ListChange change = m_rows.insert(std::move(row), place);
    m_pending |= change;
    return !change.isNone();
}

void ListViewBase::updateRow(o7::ListRow row)
{
    const Update update(*this);
    if (m_rows.order().column != o7::ListOrder::kUnsorted) {
        keepMarks(); // the row may go elsewhere
    }
    m_pending |= m_rows.update(std::move(row));
}

void ListViewBase::removeRow(int id)
{
    const Update update(*this);
    keepMarks();
    m_pending |= m_rows.remove(id);
}

void ListViewBase::removeAllRows()
{
    setRows({});
}

void ListViewBase::moveRow(int id, int place)
{
    const Update update(*this);
    keepMarks();
    m_pending |= m_rows.move(id, place);
}

void ListViewBase::setRowUnavailable(int id, bool isUnavailable)
{
    const Update update(*this);
    m_pending |= m_rows.setUnavailable(id, isUnavailable);
}

void ListViewBase::setRowChecked(int id, bool isChecked)
{
    const Update update(*this);
    m_pending |= m_rows.setChecked(id, isChecked);
}

void ListViewBase::sortBy(o7::ListOrder order)
{
    if (order == m_rows.order()) {
        return;
    }
    const Update update(*this);
    keepMarks();
    m_pending |= m_rows.sortBy(order);
    showSortArrow();
}

std::vector<int> ListViewBase::getSelectedRows() const
{
    std::vector<int> selected = m_marks ? m_marks->selected : readMarks(markedPlaces()).selected;
    if (m_marks) {
        std::erase_if(selected, [this](int id) { return m_rows.indexOf(id) < 0; });
    }
    return selected;
}

std::optional<int> ListViewBase::getSelectedRow() const
{
    const std::vector<int> selected = getSelectedRows();
    return selected.empty() ? std::nullopt : std::optional<int>(selected.front());
}

void ListViewBase::selectRows(const std::vector<int>& ids)
{
    const Update update(*this);
    keepMarks();
    m_marks->selected.clear();
    m_reveal.reset();
    const bool takesOne = isForOneRow();
    for (const int id : ids) {
        const bool isTaken = m_rows.indexOf(id) >= 0 && !(takesOne && m_reveal);
        if (isTaken) {
            m_marks->selected.push_back(id);
            m_reveal = m_reveal.value_or(id);
        }
    }
    m_marks->focused = m_reveal ? m_reveal : m_marks->focused;
}

std::optional<int> ListViewBase::getFocusedRow() const
{
    if (m_marks) {
        return m_marks->focused;
    }
    if (m_window == nullptr) {
        return std::nullopt;
    }
    return m_rows.idAt(
        static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(INT_PTR{-1}), LVNI_FOCUSED)));
}

void ListViewBase::showCheckBoxes(bool show)
{
    if (show != m_hasCheckBoxes) {
        m_hasCheckBoxes = show;
        send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, show ? LVS_EX_CHECKBOXES : 0);
        // The marks are asked for, like the texts.
        send(LVM_SETCALLBACKMASK, show ? LVIS_STATEIMAGEMASK : 0);
    }
}

void ListViewBase::setEmptyText(const CXString& text)
{
    if (text == m_emptyText) {
        return;
    }
    m_emptyText = text;
    if (m_rows.count() == 0 && m_window != nullptr) {
        ::InvalidateRect(m_window, nullptr, TRUE);
    }
}

ListViewBase::Update::Update(ListViewBase& list) : m_list(list)
{
    ++list.m_updates;
}

/// Selection and focus stay with their rows. To be called before rows move.
void ListViewBase::keepMarks()
{
    if (!m_marks) {
        m_marked = markedPlaces();
        m_marks = readMarks(m_marked);
    }
}

ListViewBase::Update::~Update()
{
    if (--m_list.m_updates > 0) {
        return;
    }
    try {
        m_list.showChange();
    } catch (const std::bad_alloc&) {
        // The rows are right; at worst others than before are selected.
        if (m_list.m_window != nullptr) {
            ::InvalidateRect(m_list.m_window, nullptr, TRUE);
        }
    }
    m_list.m_pending = {};
    m_list.m_marks.reset();
    m_list.m_reveal.reset();
}

LRESULT ListViewBase::send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessageW(m_window, message, wParam, lParam);
}

HWND ListViewBase::headerWindow() const
{
    return reinterpret_cast<HWND>(send(LVM_GETHEADER));
}

bool ListViewBase::isForOneRow() const
{
    return (::GetWindowLongPtrW(m_window, GWL_STYLE) & LVS_SINGLESEL) != 0;
}

/// The window draws nothing before it is asked to paint, so that several changes of count, state
/// and area make one picture; holding back its drawing would paint the whole of it each time.
void ListViewBase::showChange()
{
    if (m_window == nullptr) {
        return;
    }
    const FlagScope silence(m_isSilent);
    showCount();
    repaintRows();
    if (m_marks) {
        showMarks();
    }
    const int revealed = m_reveal ? m_rows.indexOf(*m_reveal) : -1;
    if (revealed >= 0) {
        send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(revealed), FALSE);
    }
}

void ListViewBase::showCount()
{
    const int before = static_cast<int>(send(LVM_GETITEMCOUNT));
    const int count = m_rows.count();
    if (before == count) {
        return;
    }
    send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
    if (count < before || before == 0) {
        // The ground that rows leave, and the text of an empty list.
        ::InvalidateRect(m_window, nullptr, TRUE);
    }
    fitColumns(); // a scroll bar may have come or gone
}

void ListViewBase::repaintRows()
{
    // Only what is in view: the window would mark each row by itself.
    const int top = static_cast<int>(send(LVM_GETTOPINDEX));
    const int bottom = top + static_cast<int>(send(LVM_GETCOUNTPERPAGE));
    const int first = std::max(m_pending.first, top);
    const int last = std::min({m_pending.last, bottom, m_rows.count() - 1});
    if (first <= last) {
        send(LVM_REDRAWITEMS, static_cast<WPARAM>(first), last);
    }
}

/// The places that the window has selected, rising.
std::vector<int> ListViewBase::markedPlaces() const
{
    std::vector<int> places;
    const auto selected = static_cast<int>(send(LVM_GETSELECTEDCOUNT));
    if (m_window == nullptr || selected <= 0) {
        return places;
    }
    places.reserve(static_cast<std::size_t>(selected));
    if (selected == static_cast<int>(send(LVM_GETITEMCOUNT))) {
        // Asked for each, a long list would take its time.
        for (int place = 0; place < selected; ++place) {
            places.push_back(place);
        }
        return places;
    }
    for (int place = -1; static_cast<int>(places.size()) < selected;) {
        place = static_cast<int>(
            send(LVM_GETNEXTITEM, static_cast<WPARAM>(static_cast<INT_PTR>(place)), LVNI_SELECTED));
        if (place < 0) {
            break;
        }
        places.push_back(place);
    }
    return places;
}

ListViewBase::Marks ListViewBase::readMarks(const std::vector<int>& places) const
{
    Marks marks;
    marks.focused = getFocusedRow();
    for (const int place : places) {
        if (const std::optional<int> id = m_rows.idAt(place)) {
            marks.selected.push_back(*id);
        }
    }
    return marks;
}

/// The window marks places; this puts its marks where the rows are now.
void ListViewBase::showMarks()
{
    std::vector<int> wanted;
    for (const int id : m_marks->selected) {
        const int place = m_rows.indexOf(id);
        if (place >= 0) {
            wanted.push_back(place);
        }
    }
    std::sort(wanted.begin(), wanted.end());
    wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
    std::erase_if(m_marked, [this](int place) { return place >= m_rows.count(); });
    markPlaces(m_marked, wanted);
    const int focused = m_marks->focused ? m_rows.indexOf(*m_marks->focused) : -1;
    const auto shown =
        static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(INT_PTR{-1}), LVNI_FOCUSED));
    if (focused >= 0 && shown != focused) {
        setRowState(focused, LVIS_FOCUSED, LVIS_FOCUSED);
        send(LVM_SETSELECTIONMARK, 0, focused);
    }
}

/// Changes what differs. Where that is most of the list, all rows are marked at once first.
void ListViewBase::markPlaces(const std::vector<int>& marked, const std::vector<int>& wanted)
{
    std::vector<int> taken;
    std::vector<int> given;
    std::set_difference(marked.begin(), marked.end(), wanted.begin(), wanted.end(),
                        std::back_inserter(taken));
    std::set_difference(wanted.begin(), wanted.end(), marked.begin(), marked.end(),
                        std::back_inserter(given));
    const auto count = static_cast<std::size_t>(m_rows.count());
    const std::size_t changes = taken.size() + given.size();
    if (1 + std::min(wanted.size(), count - wanted.size()) < changes) {
        const bool most = wanted.size() > count / 2;
        setRowState(-1, most ? LVIS_SELECTED : 0U, LVIS_SELECTED);
        std::vector<int> all(most ? count : 0);
        std::iota(all.begin(), all.end(), 0);
        markPlaces(all, wanted);
        return;
    }
    for (const int place : taken) {
        setRowState(place, 0, LVIS_SELECTED);
    }
    for (const int place : given) {
        setRowState(place, LVIS_SELECTED, LVIS_SELECTED);
    }
}

void ListViewBase::setRowState(int index, UINT state, UINT mask)
{
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    // Some systems invalidate each row of a whole list by itself. Whoever is told may destroy this
    // object, so the window is kept.
    HWND window = m_window;
    const bool isWhole = index < 0 && ::IsWindowVisible(window) != FALSE;
    if (isWhole) {
        ::SendMessageW(window, WM_SETREDRAW, FALSE, 0);
    }
    ::SendMessageW(window, LVM_SETITEMSTATE, static_cast<WPARAM>(static_cast<INT_PTR>(index)),
                   reinterpret_cast<LPARAM>(&item));
    if (isWhole) {
        ::SendMessageW(window, WM_SETREDRAW, TRUE, 0);
        ::InvalidateRect(window, nullptr, FALSE);
    }
}

void ListViewBase::applyWidths(const std::vector<int>& widths)
{
    const std::vector<int> present = getColumnWidths();
    for (std::size_t i = 0; i < present.size(); ++i) {
        if (present[i] != widths[i]) {
            send(LVM_SETCOLUMNWIDTH, i, MAKELPARAM(widths[i], 0));
        }
    }
}

void ListViewBase::showSortArrow()
{
    HWND header = headerWindow();
    const o7::ListOrder order = m_rows.order();
    for (std::size_t i = 0; i < m_rows.columns().size(); ++i) {
        HDITEMW title{};
        title.mask = HDI_FORMAT;
        ::SendMessageW(header, HDM_GETITEMW, i, reinterpret_cast<LPARAM>(&title));
        const bool isSortedByThis = order.column == static_cast<int>(i);
        const int arrow = order.isDescending ? HDF_SORTDOWN : HDF_SORTUP;
        const int format =
            (title.fmt & ~(HDF_SORTUP | HDF_SORTDOWN)) | (isSortedByThis ? arrow : 0);
        if (format != title.fmt) {
            title.fmt = format;
            ::SendMessageW(header, HDM_SETITEMW, i, reinterpret_cast<LPARAM>(&title));
        }
    }
}
