#include "listrows.h"

#include "cxstringprinter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace {

using o7::ListChange;
using o7::ListColumn;
using o7::ListOrder;
using o7::ListRow;
using o7::ListRows;
using o7::ListSort;

constexpr ListChange kNone{};

ListColumn column(int width, int share = 0, ListSort sort = ListSort::Text)
{
    ListColumn result;
    result.width = width;
    result.share = share;
    result.sort = sort;
    return result;
}

ListRow row(int id, const wchar_t* first, const wchar_t* second = L"")
{
    return {id, {first, second}};
}

std::string ids(const ListRows& rows)
{
    std::string text;
    for (int index = 0; index < rows.count(); ++index) {
        text += index > 0 ? " " : "";
        text += std::to_string(rows.at(index)->id);
    }
    return text;
}

/// Text, number and unsortable column; rows 1 to 4.
ListRows sample()
{
    ListRows rows;
    rows.setColumns({column(10), column(10, 0, ListSort::Number), column(10, 0, ListSort::None)});
    rows.setRows(
        {row(1, L"cover", L"10"), row(2, L"Insert", L"9"), row(3, L"back", L"-2"), {4, {}}});
    return rows;
}

TEST(ListRows, ColumnsFillTheRoom)
{
    struct Row
    {
        const char* what = "";
        std::vector<ListColumn> columns{};
        int room = 0;
        std::vector<int> widths{};
    };
    const Row table[] = {
        {"none", {}, 100, {}},
        {"the first one takes what is left", {column(10), column(20)}, 100, {80, 20}},
        {"so does the one with a share", {column(10), column(20, 1)}, 100, {10, 90}},
        {"shares divide what is left", {column(10, 1), column(10), column(0, 2)}, 80, {30, 10, 40}},
        {"to the last pixel", {column(0, 1), column(0, 1), column(0, 1)}, 100, {33, 33, 34}},
        {"too narrow", {column(60), column(60, 1)}, 100, {60, 60}},
        {"nonsense", {column(-5, -1), column(20)}, -7, {0, 20}},
    };
    for (const Row& line : table) {
        EXPECT_EQ(line.widths, o7::columnWidths(line.columns, line.room)) << line.what;
    }
}

TEST(ListRows, NumbersSortByValue)
{
    const wchar_t* const order[] = {L"-2",  L"0.5",    L"1,5",     L"10",          L"",
                                    L"1-3", L"2-1",    L"10-12",   L"192.0.2.9",   L"192.0.2.10",
                                    L"a",   L"Tray 2", L"tray 10", L"tray 10 left"};
    std::mt19937 random(7);
    ListRows rows;
    rows.setColumns({column(10, 0, ListSort::Number)});
    for (int round = 0; round < 50; ++round) {
        std::vector<ListRow> shuffled;
        for (const wchar_t* text : order) {
            shuffled.push_back({static_cast<int>(shuffled.size()), {text}});
        }
        std::shuffle(shuffled.begin(), shuffled.end(), random);
        rows.sortBy({});
        rows.setRows(shuffled);
        rows.sortBy({0, false});
        ASSERT_EQ("0 1 2 3 4 5 6 7 8 9 10 11 12 13", ids(rows));
    }
    rows.setRows({{1, {L"Tray 007"}}, {2, {L"tray 7"}}, {3, {L"tray 0"}}});
    EXPECT_EQ("3 1 2", ids(rows)) << "equal ones stay as they were";
}

TEST(ListRows, SortsByEveryColumnBothWays)
{
    struct Row
    {
        ListOrder order{};
        const char* ids = "";
    };
    constexpr Row table[] = {
        {{0, false}, "4 3 1 2"},
        {{0, true}, "2 1 3 4"},
        {{1, false}, "3 2 1 4"},
        {{1, true}, "4 1 2 3"},
        {{2, false}, "1 2 3 4"},
        {{7, false}, "1 2 3 4"},
        {{ListOrder::kUnsorted}, "1 2 3 4"},
    };
    for (const Row& line : table) {
        ListRows rows = sample();
        rows.sortBy(line.order);
        EXPECT_EQ(line.ids, ids(rows)) << line.order.column << line.order.isDescending;
    }
}

TEST(ListRows, ClicksOnATitleTurnTheOrder)
{
    ListRows rows = sample();
    EXPECT_EQ((ListOrder{0, false}), rows.orderAfterClick(0));
    rows.sortBy({0, false});
    EXPECT_EQ((ListOrder{0, true}), rows.orderAfterClick(0));
    EXPECT_EQ((ListOrder{1, false}), rows.orderAfterClick(1));
    for (const int unsortable : {2, 3, -1}) {
        EXPECT_EQ(rows.order(), rows.orderAfterClick(unsortable));
    }
    rows.setColumns({column(10, 0, ListSort::None)});
    EXPECT_EQ(ListOrder{}, rows.order());
}

TEST(ListRows, ChangesTellWhatTheyTouched)
{
    ListRows rows = sample();
    struct Step
    {
        const char* what;
        ListChange expectedChange;
        const char* expectedIds;
        ListChange change;
        std::string idsAfter;
    };
    // What a step does is done as the table is read.
    const Step steps[] = {
        {"known id", kNone, "1 2 3 4", rows.insert(row(3, L"again"), 0), ids(rows)},
        {"at a place", {1, 4}, "1 5 2 3 4", rows.insert(row(5, L"new"), 1), ids(rows)},
        {"at the end", {5, 5}, "1 5 2 3 4 6", rows.insert(row(6, L"last"), -1), ids(rows)},
        {"beyond", {6, 6}, "1 5 2 3 4 6 -7", rows.insert(row(-7, L"beyond"), 99), ids(rows)},
        {"same again", kNone, "1 5 2 3 4 6 -7", rows.update(row(5, L"new")), ids(rows)},
        {"other text", {1, 1}, "1 5 2 3 4 6 -7", rows.update(row(5, L"newer")), ids(rows)},
        {"unknown", kNone, "1 5 2 3 4 6 -7", rows.update(row(99, L"?")), ids(rows)},
        {"unknown", kNone, "1 5 2 3 4 6 -7", rows.remove(99), ids(rows)},
        {"removed", {1, 6}, "1 2 3 4 6 -7", rows.remove(5), ids(rows)},
        {"moved down", {0, 3}, "2 3 4 1 6 -7", rows.move(1, 3), ids(rows)},
        {"moved up", {1, 4}, "2 6 3 4 1 -7", rows.move(6, 1), ids(rows)},
        {"moved nowhere", kNone, "2 6 3 4 1 -7", rows.move(6, 1), ids(rows)},
        {"grey", {1, 1}, "2 6 3 4 1 -7", rows.setUnavailable(6, true), ids(rows)},
        {"grey again", kNone, "2 6 3 4 1 -7", rows.setUnavailable(6, true), ids(rows)},
        {"checked", {1, 1}, "2 6 3 4 1 -7", rows.setChecked(6, true), ids(rows)},
        {"checked again", kNone, "2 6 3 4 1 -7", rows.setChecked(6, true), ids(rows)},
        {"unknown", kNone, "2 6 3 4 1 -7", rows.setChecked(99, true), ids(rows)},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        EXPECT_EQ(step.expectedChange, step.change);
        EXPECT_EQ(step.expectedIds, step.idsAfter);
    }
}

TEST(ListRows, ReplacingAllTellsWhereTheyDiffer)
{
    ListRows rows = sample();
    const std::vector<ListRow> same = {*rows.at(0), *rows.at(1), *rows.at(2), *rows.at(3)};
    EXPECT_EQ(kNone, rows.setRows(same));
    EXPECT_EQ((ListChange{1, 2}),
              rows.setRows({same[0], row(2, L"other"), row(3, L"too"), same[3]}));
    EXPECT_EQ((ListChange{1, 3}), rows.setRows({same[0], row(1, L"second of this id")}));
    EXPECT_EQ(L"cover", rows.text(0, 0));
    EXPECT_EQ((ListChange{0, 0}), rows.setRows({}));
    EXPECT_EQ(kNone, rows.setRows({}));
}

TEST(ListRows, AnswersNeutrallyOutside)
{
    const ListRows rows = sample();
    for (const int outside : {-1, 4, 1000}) {
        EXPECT_EQ(nullptr, rows.at(outside));
        EXPECT_FALSE(rows.idAt(outside));
        EXPECT_EQ(L"", rows.text(outside, 0));
        EXPECT_EQ(L"", rows.text(0, outside));
    }
    EXPECT_EQ(-1, rows.indexOf(99));
}

TEST(ListRows, FindsByTheStartOfTheFirstText)
{
    const ListRows rows = sample();
    EXPECT_EQ(1, rows.findByStart(L"INS", 0));
    EXPECT_EQ(0, rows.findByStart(L"c", 3)); // goes on at the top
    EXPECT_EQ(2, rows.findByStart(L"b", 99));
    EXPECT_EQ(-1, rows.findByStart(L"covers", 0));
    EXPECT_EQ(-1, ListRows().findByStart(L"a", 0));
}

/// Whatever is done to a sorted list, it is sorted, and the change covers what differs.
TEST(ListRows, StaysSortedOverEveryChange)
{
    std::mt19937 random(7);
    const auto number = [&random](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    ListRows rows = sample();
    for (int step = 0; step < 3000; ++step) {
        if (step % 100 == 0) {
            rows.sortBy({number(2), number(2) != 0});
        }
        std::vector<ListRow> before;
        before.reserve(static_cast<std::size_t>(rows.count()));
        for (int i = 0; i < rows.count(); ++i) {
            before.push_back(*rows.at(i));
        }
        const CXString text = CXString::Formatted(L"%d", number(30));
        const int id = number(40);
        ListChange change;
        switch (number(4)) {
        case 0:
            change = rows.remove(id);
            break;
        case 1:
            change = rows.update({id, {text, text}});
            break;
        case 2:
            change = rows.move(id, number(40)); // refused
            break;
        default:
            change = rows.insert({id, {text, text}}, number(40));
        }
        for (int i = 0; i < rows.count(); ++i) {
            const bool isCovered = i >= change.first && i <= change.last;
            const auto place = static_cast<std::size_t>(i);
            EXPECT_TRUE(isCovered || (place < before.size() && before[place] == *rows.at(i)));
        }
        ListRows again = rows;
        EXPECT_EQ(kNone, again.sortBy(rows.order())) << step;
    }
}

} // namespace
