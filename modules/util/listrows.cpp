#include "listrows.h"

#include "casing.h"
#include "naturalorder.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <unordered_set>
#include <utility>

namespace o7 {

namespace {

/// The part of a text that a shorter one is compared with.
std::wstring_view startOf(std::wstring_view text, std::wstring_view asLongAs)
{
    return text.substr(0, asLongAs.size());
}

std::size_t clampPlace(int place, std::size_t count)
{
    return place < 0 || static_cast<std::size_t>(place) > count ? count
                                                                : static_cast<std::size_t>(place);
}

ListChange changeAt(std::size_t first, std::size_t last)
{
    return {static_cast<int>(first), static_cast<int>(last)};
}

} // namespace

ListChange& ListChange::operator|=(const ListChange& other) noexcept
{
    if (isNone()) {
        *this = other;
    } else if (!other.isNone()) {
        first = std::min(first, other.first);
        last = std::max(last, other.last);
    }
    return *this;
}

std::vector<int> columnWidths(const std::vector<ListColumn>& columns, int room)
{
    std::vector<int> widths;
    widths.reserve(columns.size());
    std::vector<int> shares;
    shares.reserve(columns.size());
    for (const ListColumn& column : columns) {
        widths.push_back(std::max(0, column.width));
        shares.push_back(std::max(0, column.share));
    }
    auto sharesLeft = std::accumulate(shares.begin(), shares.end(), std::int64_t{0});
    if (sharesLeft == 0 && !shares.empty()) {
        shares.front() = 1;
        sharesLeft = 1;
    }
    auto rest = std::max(std::int64_t{0},
                         room - std::accumulate(widths.begin(), widths.end(), std::int64_t{0}));
    for (std::size_t i = 0; i < widths.size() && sharesLeft > 0; ++i) {
        const std::int64_t part = rest * shares[i] / sharesLeft;
        widths[i] += static_cast<int>(part);
        rest -= part;
        sharesLeft -= shares[i];
    }
    return widths;
}

int ListRows::compareTexts(const CXString& a, const CXString& b) noexcept
{
    return a.CompareNoCase(b);
}

ListRows::ListRows(TextComparison comparison) noexcept : m_compare(comparison)
{
}

void ListRows::setColumns(std::vector<ListColumn> columns)
{
    m_columns = std::move(columns);
    if (!canSortBy(m_order.column)) {
        m_order = {};
    }
}

ListChange ListRows::setRows(std::vector<ListRow> rows)
{
    std::unordered_set<int> seen;
    std::erase_if(rows, [&seen](const ListRow& row) { return !seen.insert(row.id).second; });
    return takeOver(std::move(rows));
}

ListChange ListRows::insert(ListRow row, int place)
{
    if (indexOf(row.id) >= 0) {
        return {};
    }
    const std::size_t index = isSorted() ? sortedPlace(row) : clampPlace(place, m_rows.size());
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(index), std::move(row));
    orderChanged();
    return changeAt(index, m_rows.size() - 1);
}

ListChange ListRows::update(ListRow row)
{
    const int index = indexOf(row.id);
    if (index < 0 || *at(index) == row) {
        return {};
    }
    const auto from = static_cast<std::size_t>(index);
    // Where it stands is right as long as its neighbours do not mind.
    const bool fitsBefore = from == 0 || !isBefore(row, m_rows[from - 1]);
    const bool fitsBehind = from + 1 == m_rows.size() || !isBefore(m_rows[from + 1], row);
    if (!isSorted() || (fitsBefore && fitsBehind)) {
        m_rows[from] = std::move(row);
        return changeAt(from, from);
    }
    m_rows.erase(m_rows.begin() + index);
    orderChanged();
    const std::size_t to = sortedPlace(row);
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(to), std::move(row));
    return changeAt(std::min(from, to), std::max(from, to));
}

ListChange ListRows::remove(int id)
{
    const int index = indexOf(id);
    if (index < 0) {
        return {};
    }
    const ListChange change = {index, count() - 1};
    m_rows.erase(m_rows.begin() + index);
    orderChanged();
    return change;
}

ListChange ListRows::move(int id, int place)
{
    const int index = indexOf(id);
    if (index < 0 || isSorted()) {
        return {};
    }
    const auto from = static_cast<std::size_t>(index);
    const std::size_t to = clampPlace(place, m_rows.size() - 1);
    const auto begin = m_rows.begin();
    const auto fromAt = begin + index;
    const auto toAt = begin + static_cast<std::ptrdiff_t>(to);
    if (from < to) {
        std::rotate(fromAt, fromAt + 1, toAt + 1);
    } else {
        std::rotate(toAt, fromAt, fromAt + 1);
    }
    orderChanged();
    return from == to ? ListChange{} : changeAt(std::min(from, to), std::max(from, to));
}

ListChange ListRows::setUnavailable(int id, bool isUnavailable)
{
    return setFlag(id, &ListRow::isUnavailable, isUnavailable);
}

ListChange ListRows::setChecked(int id, bool isChecked)
{
    return setFlag(id, &ListRow::isChecked, isChecked);
}

ListChange ListRows::sortBy(ListOrder order)
{
    m_order = canSortBy(order.column) ? order : ListOrder{};
    return takeOver(m_rows);
}

ListOrder ListRows::orderAfterClick(int column) const noexcept
{
    if (!canSortBy(column)) {
        return m_order;
    }
    return {column, column == m_order.column && !m_order.isDescending};
}

const ListRow* ListRows::at(int index) const noexcept
{
    return index >= 0 && index < count() ? &m_rows[static_cast<std::size_t>(index)] : nullptr;
}

std::optional<int> ListRows::idAt(int index) const noexcept
{
    const ListRow* row = at(index);
    return row != nullptr ? std::optional<int>(row->id) : std::nullopt;
}

void ListRows::orderChanged() noexcept
{
    m_places.clear();
    m_searches = 0;
}

int ListRows::indexOf(int id) const
{
    // One search costs less than to note all places, many cost more.
    constexpr int kFewSearches = 4;
    if (m_places.empty() && ++m_searches > kFewSearches) {
        m_places.reserve(m_rows.size());
        for (int index = 0; index < count(); ++index) {
            m_places.emplace_back(at(index)->id, index);
        }
        std::sort(m_places.begin(), m_places.end());
    }
    if (!m_places.empty()) {
        const auto place = std::lower_bound(m_places.begin(), m_places.end(), std::pair(id, -1));
        return place != m_places.end() && place->first == id ? place->second : -1;
    }
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [id](const ListRow& row) { return row.id == id; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

CXString ListRows::text(int index, int column) const
{
    const ListRow* row = at(index);
    const auto cell = static_cast<std::size_t>(column);
    return row != nullptr && column >= 0 && cell < row->texts.size() ? row->texts[cell]
                                                                     : CXString();
}

int ListRows::findByStart(const CXString& start, int from) const
{
    const int first = from >= 0 && from < count() ? from : 0;
    for (int step = 0; step < count(); ++step) {
        const int index = (first + step) % count();
        const CXString whole = text(index, 0);
        if (compareNoCase(startOf(whole.View(), start.View()), start.View()) == 0) {
            return index;
        }
    }
    return -1;
}

/// Only for a sorted list. Descending is the same comparison the other way round, so that equal
/// rows keep their order in both directions.
bool ListRows::isBefore(const ListRow& a, const ListRow& b) const
{
    if (!isSorted()) {
        return false;
    }
    const auto column = static_cast<std::size_t>(m_order.column);
    const CXString none;
    const CXString& textA = column < a.texts.size() ? a.texts[column] : none;
    const CXString& textB = column < b.texts.size() ? b.texts[column] : none;
    const int difference = m_columns[column].sort == ListSort::Number ? compareNatural(textA, textB)
                                                                      : m_compare(textA, textB);
    return m_order.isDescending ? difference > 0 : difference < 0;
}

bool ListRows::canSortBy(int column) const noexcept
{
    const auto index = static_cast<std::size_t>(column);
    return column >= 0 && index < m_columns.size() && m_columns[index].sort != ListSort::None;
}

ListChange ListRows::setFlag(int id, bool ListRow::*flag, bool value)
{
    const int place = indexOf(id);
    if (place < 0) {
        return {};
    }
    const auto index = static_cast<std::size_t>(place);
    if (m_rows[index].*flag == value) {
        return {};
    }
    m_rows[index].*flag = value;
    return changeAt(index, index);
}

std::size_t ListRows::sortedPlace(const ListRow& row) const
{
    const auto place =
        std::upper_bound(m_rows.begin(), m_rows.end(), row,
                         [this](const ListRow& a, const ListRow& b) { return isBefore(a, b); });
    return static_cast<std::size_t>(place - m_rows.begin());
}

/// Sorts the rows if need be, takes them, and tells where they differ from those before.
ListChange ListRows::takeOver(std::vector<ListRow> rows)
{
    if (isSorted()) {
        std::stable_sort(rows.begin(), rows.end(),
                         [this](const ListRow& a, const ListRow& b) { return isBefore(a, b); });
    }
    m_rows.swap(rows);
    orderChanged();
    const std::vector<ListRow>& before = rows;
    const auto first = std::mismatch(m_rows.begin(), m_rows.end(), before.begin(), before.end());
    const auto start = static_cast<std::size_t>(first.first - m_rows.begin());
    std::size_t end = std::max(m_rows.size(), before.size());
    if (m_rows.size() == before.size()) {
        const auto last = std::mismatch(m_rows.rbegin(), m_rows.rend(), before.rbegin());
        end -= static_cast<std::size_t>(last.first - m_rows.rbegin());
    }
    return start >= end ? ListChange{} : changeAt(start, end - 1);
}

} // namespace o7
