#pragma once
// ListRows: what a list with columns shows, without the window: its columns, its rows in the order
// in which they stand, and what they are sorted by. ListViewBase shows it.

#include "cxstring.h"
#include "utilapi.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace o7 {

/// Sides follow the reading direction: Leading is left, in a mirrored window right.
enum class ListAlignment : std::uint8_t
{
    Leading,
    Centre,
    Trailing
};

/// How the texts of a column compare when the list is sorted by it.
enum class ListSort : std::uint8_t
{
    None,  ///< the list cannot be sorted by this column
    Text,  ///< by the comparison that the rows were made with
    Number ///< by value; texts that are no number behind, digits in them by value ("2-1" < "10-1")
};

struct ListColumn
{
    CXString title;
    int width = 0; ///< pixels; with a share the least width
    int share = 0; ///< part in what the widths of all columns leave of the list's width
    ListAlignment alignment = ListAlignment::Leading; ///< the first column is always Leading
    ListSort sort = ListSort::Text;

    bool operator==(const ListColumn&) const = default;
};

struct ListRow
{
    int id = 0;                    ///< any number; stays with the row wherever it stands
    std::vector<CXString> texts{}; ///< one a column; missing ones are empty, further ones are kept
    bool isUnavailable = false;    ///< shown grey
    bool isChecked = false;

    bool operator==(const ListRow&) const = default;
};

/// What a list is sorted by.
struct ListOrder
{
    static constexpr int kUnsorted = -1;

    int column = kUnsorted;
    bool isDescending = false;

    bool operator==(const ListOrder&) const = default;
};

/// The places, in the new order or past its end, whose rows are no longer what they were.
struct O7UTIL_API ListChange
{
    int first = 0;
    int last = -1;

    bool isNone() const noexcept { return last < first; }
    /// From now on also what the other one covers.
    ListChange& operator|=(const ListChange& other) noexcept;
    bool operator==(const ListChange&) const = default;
};

/// The widths of columns in a list with so many pixels of room: each its own width, and what is
/// left over goes to those with a share, or to the first one when none has. The sum is the room,
/// unless the widths alone are more than that.
O7UTIL_API std::vector<int> columnWidths(const std::vector<ListColumn>& columns, int room);

/// Columns and rows. A sorted list stays sorted: new and changed rows go where they belong. Rows
/// that compare equal keep their order. An id or a place that is not there changes nothing.
class O7UTIL_API ListRows
{
public:
    /// Negative, 0 or positive, as the first text comes before, with or after the second.
    using TextComparison = int (*)(const CXString&, const CXString&);

    /// Compares without regard to case, by character value.
    static int compareTexts(const CXString& a, const CXString& b) noexcept;

    explicit ListRows(TextComparison comparison = &compareTexts) noexcept;

    /// The rows stay; the list is unsorted when the column it was sorted by no longer sorts.
    void setColumns(std::vector<ListColumn> columns);
    const std::vector<ListColumn>& columns() const noexcept { return m_columns; }

    /// Replaces all rows. Of rows with the same id the first is kept.
    ListChange setRows(std::vector<ListRow> rows);
    /// Puts a row before the one at the place, in a sorted list where it belongs; at the end for a
    /// place that is not there. Nothing when the id is there already.
    ListChange insert(ListRow row, int place);
    /// Replaces the row with the same id.
    ListChange update(ListRow row);
    ListChange remove(int id);
    /// Takes a row to another place, counted without it; an order of one's own exists only in an
    /// unsorted list.
    ListChange move(int id, int place);
    ListChange setUnavailable(int id, bool isUnavailable);
    ListChange setChecked(int id, bool isChecked);

    /// A column that does not sort leaves the list unsorted, with the rows as they stand.
    ListChange sortBy(ListOrder order);
    ListOrder order() const noexcept { return m_order; }
    /// What a click on the column's title asks for: sorted by it, or the other way round when it is
    /// already; the present order for a column that does not sort.
    ListOrder orderAfterClick(int column) const noexcept;

    int count() const noexcept { return static_cast<int>(m_rows.size()); }
    /// Null outside the list. Valid until the next change.
    const ListRow* at(int index) const noexcept;
    std::optional<int> idAt(int index) const noexcept;
    /// -1 when there is no such row. Asked for one row after the other without a change of their
    /// order in between, it soon knows the places of all.
    int indexOf(int id) const;
    /// Empty outside the list.
    CXString text(int index, int column) const;
    /// First row, from the start on and then from the top, whose first text begins so, whatever the
    /// case; -1 when none does.
    int findByStart(const CXString& start, int from) const;

private:
    bool isBefore(const ListRow& a, const ListRow& b) const;
    bool canSortBy(int column) const noexcept;
    bool isSorted() const noexcept { return m_order.column != ListOrder::kUnsorted; }
    ListChange setFlag(int id, bool ListRow::*flag, bool value);
    std::size_t sortedPlace(const ListRow& row) const;
    void orderChanged() noexcept;
    ListChange takeOver(std::vector<ListRow> rows);

    TextComparison m_compare;
    std::vector<ListColumn> m_columns;
    std::vector<ListRow> m_rows;                       ///< in the order shown
    mutable std::vector<std::pair<int, int>> m_places; ///< id and place by id; empty: not known now
    mutable int m_searches = 0;                        ///< since the order changed
    ListOrder m_order;
};

} // namespace o7
