// A list with columns, in a page that hands it its messages, with real mouse and keys.

#include "uilistviewcontrol.h"

#include "cxstring.h"
#include "input.h"
#include "messagerecorder.h"
#include "resourceguard.h"
#include "testpage.h"
#include "uitooltips.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace {

using o7::ListAlignment;
using o7::ListColumn;
using o7::ListOrder;
using o7::ListRow;
using o7::ListSort;
using o7::test::TestPage;

constexpr int kId = 42;
const wchar_t* const kLongName =
    L"The printer with the longest name on the whole of the third floor";

/// Writes down what the list tells, one word each.
class Log : public ListViewObserver
{
public:
    void listSelectionChanged() override { add("selection"); }
    void listRowActivated(int id) override { add("activated " + std::to_string(id)); }
    void listRowChecked(int id, bool isChecked) override
    {
        add((isChecked ? "checked " : "unchecked ") + std::to_string(id));
    }
    bool listKeyPressed(unsigned virtualKey) override
    {
        add("key " + std::to_string(virtualKey));
        return false;
    }
    void listContextMenuWanted(std::optional<int> id, int x, int y) override
    {
        add(id ? "menu " + std::to_string(*id) : std::string("menu"));
        menuPlace = {x, y};
    }
    void listLayoutChanged() override { add("layout"); }

    bool has(const std::string& entry) const
    {
        return std::find(entries.begin(), entries.end(), entry) != entries.end();
    }
    std::vector<std::string> entries;
    POINT menuPlace{};

private:
    void add(std::string entry) { entries.push_back(std::move(entry)); }
};

ListColumn column(const wchar_t* title, int width, ListSort sort = ListSort::Text)
{
    ListColumn result;
    result.title = title;
    result.width = width;
    result.sort = sort;
    return result;
}

std::vector<ListColumn> sampleColumns()
{
    return {column(L"Name", 40), column(L"Address", 60, ListSort::Number)};
}

std::vector<ListRow> sampleRows()
{
    return {{10, {L"laser", L"192.0.2.10"}},
            {11, {kLongName, L"192.0.2.9"}},
            {12, {L"copier", L"192.0.2.30"}}};
}

std::vector<ListRow> manyRows(int count)
{
    std::vector<ListRow> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int id = 0; id < count; ++id) {
        rows.push_back({id, {CXString::Formatted(L"row %d", id), L"text"}});
    }
    return rows;
}

class UIListView : public testing::Test
{
protected:
    explicit UIListView(DWORD style = 0)
        : m_list(std::make_unique<UIListViewControl>(m_page.page(), kId, m_page.services(),
                                                     m_page.font(), POINT{7, 7}, SIZE{130, 70},
                                                     style, m_tips))
    {
        m_page.handler = m_list.get();
        m_list->setObserver(&m_log);
        m_list->setColumnsInDialogUnits(sampleColumns());
        m_list->setRows(sampleRows());
        ::SetFocus(window());
        o7::test::pumpUntilQuiet();
        m_log.entries.clear();
    }
    HWND window() const { return m_list->getHwnd(); }
    HWND header() const
    {
        return reinterpret_cast<HWND>(::SendMessageW(window(), LVM_GETHEADER, 0, 0));
    }
    std::string ids() const
    {
        std::string text;
        for (int i = 0; i < m_list->getRows().count(); ++i) {
            text += i > 0 ? " " : "";
            text += std::to_string(*m_list->getRows().idAt(i));
        }
        return text;
    }
    RECT rowOnScreen(int index) const
    {
        RECT row{};
        row.left = LVIR_BOUNDS;
        ::SendMessageW(window(), LVM_GETITEMRECT, static_cast<WPARAM>(index),
                       reinterpret_cast<LPARAM>(&row));
        ::MapWindowPoints(window(), nullptr, reinterpret_cast<POINT*>(&row), 2);
        return row;
    }
    void clickRow(int index) const
    {
        const RECT row = rowOnScreen(index);
        o7::test::sendClick((row.left + row.right) / 2, (row.top + row.bottom) / 2);
    }
    /// @param aside  keeps two clicks from making a double click
    void clickTitle(int index, int aside = 0) const
    {
        RECT title{};
        ::SendMessageW(header(), HDM_GETITEMRECT, static_cast<WPARAM>(index),
                       reinterpret_cast<LPARAM>(&title));
        ::MapWindowPoints(header(), nullptr, reinterpret_cast<POINT*>(&title), 2);
        o7::test::sendClick((title.left + title.right) / 2 + aside, (title.top + title.bottom) / 2);
    }
    int arrowOf(int index) const
    {
        HDITEMW title{};
        title.mask = HDI_FORMAT;
        ::SendMessageW(header(), HDM_GETITEMW, static_cast<WPARAM>(index),
                       reinterpret_cast<LPARAM>(&title));
        return title.fmt & (HDF_SORTUP | HDF_SORTDOWN);
    }
    /// What the window itself says about a cell, as a screen reader asks it.
    std::wstring cell(int row, int col) const
    {
        std::array<wchar_t, 2000> text{};
        LVITEMW item{};
        item.iSubItem = col;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        ::SendMessageW(window(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                       reinterpret_cast<LPARAM>(&item));
        return text.data();
    }
    UINT stateOf(int row) const
    {
        return static_cast<UINT>(::SendMessageW(window(), LVM_GETITEMSTATE,
                                                static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK));
    }
    bool isTipShown() const { return ::IsWindowVisible(m_tips.getHwnd()) != FALSE; }
    std::wstring tipText() const
    {
        std::array<wchar_t, 2000> text{};
        TTTOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = window();
        tool.uId = 1;
        tool.lpszText = text.data();
        ::SendMessageW(m_tips.getHwnd(), TTM_GETTEXTW, text.size(),
                       reinterpret_cast<LPARAM>(&tool));
        return text.data();
    }
    /// Rests the mouse on a row until its tip shows, or for a while.
    bool restOnRow(int index) const
    {
        const RECT row = rowOnScreen(index);
        ::SetCursorPos(row.left + 20, (row.top + row.bottom) / 2);
        o7::test::pumpUntilQuiet();
        return o7::test::pumpUntil([this] { return isTipShown(); }, 500);
    }

    TestPage m_page;
    UIToolTips m_tips{m_page.page()};
    Log m_log;
    std::unique_ptr<UIListViewControl> m_list;
};

class UIListViewForOne : public UIListView
{
protected:
    UIListViewForOne() : UIListView(LVS_SINGLESEL) {}
};

TEST_F(UIListView, IsCreatedAsAReportThatAsksForItsRows)
{
    o7::test::WindowWatch watch;
    const UIListViewControl list(m_page.page(), kId, m_page.services(), m_page.font(), {7, 7},
                                 {100, 50}, LVS_SINGLESEL, m_tips);
    ASSERT_FALSE(watch.created.empty());
    const auto& [className, creation] = watch.created.front();
    EXPECT_STREQ(WC_LISTVIEWW, className.c_str());
    EXPECT_EQ(0x50811009U | LVS_SINGLESEL, static_cast<DWORD>(creation.style));
    EXPECT_EQ(0U, creation.dwExStyle);
    EXPECT_EQ(m_page.font(), o7::test::fontOf(list.getHwnd()));
    EXPECT_TRUE(list.getIsVisable());
    const auto extended =
        static_cast<DWORD>(::SendMessageW(list.getHwnd(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
    EXPECT_EQ(DWORD{LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER}, extended);
    EXPECT_EQ(L"list view 42 \"\" 0 rows\n  columns\n", o7::test::dumpOf(list));
}

TEST_F(UIListView, GivesTheWindowEveryTextWhole)
{
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 2; ++col) {
            EXPECT_EQ(m_list->getRows().text(row, col).View(), cell(row, col));
        }
    }
    EXPECT_EQ(L"", cell(0, 7));
    const std::wstring endless(1500, L'x');
    m_list->updateRow({10, {CXString(std::wstring_view(endless))}});
    EXPECT_EQ(1500, m_list->getRows().text(0, 0).GetLength());
    EXPECT_EQ(CXString(std::wstring_view(endless)), m_list->createToolTipText(0));
    EXPECT_EQ(L"", cell(0, 1)) << "a row with fewer texts";
}

TEST_F(UIListView, FillsAThousandRowsWithAsManyMessagesAsThree)
{
    const auto messagesOf = [this](const std::function<void()>& act) {
        const o7::test::MessageRecorder recorder(window());
        act();
        const auto& all = recorder.messages();
        return std::count_if(all.begin(), all.end(), [](const o7::test::RecordedMessage& each) {
            return each.message >= LVM_FIRST && each.message < LVM_FIRST + 0x100;
        });
    };
    m_list->removeAllRows();
    const auto forThree = messagesOf([this] { m_list->setRows(sampleRows()); });
    m_list->removeAllRows();
    const auto forMany = messagesOf([this] { m_list->setRows(manyRows(1000)); });
    m_list->removeAllRows();
    const auto oneByOne = messagesOf([this] {
        const ListViewBase::Update update(*m_list);
        for (const ListRow& row : manyRows(1000)) {
            m_list->insertRow(row);
        }
    });
    EXPECT_EQ(1000, ::SendMessageW(window(), LVM_GETITEMCOUNT, 0, 0));
    // A scroll bar comes and the columns get narrower: a few messages more.
    EXPECT_LE(forMany, forThree + 12);
    EXPECT_EQ(forMany, oneByOne);
}

TEST_F(UIListView, RepaintsOnlyForWhatIsNew)
{
    const auto rows = sampleRows();
    struct Row
    {
        const char* what;
        std::function<void()> change;
    };
    const Row table[] = {
        {"all rows",
         [&] {
             m_list->setRows({rows[0], rows[2]});
         }},
        {"new row", [&] { m_list->insertRow(rows[1]); }},
        {"text",
         [&] {
             m_list->updateRow({10, {L"inkjet"}});
         }},
        {"grey", [&] { m_list->setRowUnavailable(10, true); }},
        {"check boxes", [&] { m_list->showCheckBoxes(true); }},
        {"check", [&] { m_list->setRowChecked(10, true); }},
        {"order",
         [&] {
             m_list->sortBy({1, true});
         }},
        {"selection",
         [&] {
             m_list->selectRows({12, 10});
         }},
        {"columns", [&] { m_list->setColumns({column(L"Name", 70)}); }},
        {"widths", [&] { m_list->setColumnWidths({90}); }},
        {"gone", [&] { m_list->removeRow(10); }},
        {"all gone", [&] { m_list->removeAllRows(); }},
        {"empty text", [&] { m_list->setEmptyText(L"Nothing found"); }},
    };
    for (const Row& row : table) {
        SCOPED_TRACE(row.what);
        for (const bool isNew : {true, false}) {
            ::UpdateWindow(window());
            ::UpdateWindow(header());
            row.change();
            EXPECT_EQ(isNew, ::GetUpdateRect(window(), nullptr, FALSE) != FALSE);
        }
    }
    m_list->updateRow({99, {L"unknown"}});
    m_list->removeRow(99);
    EXPECT_FALSE(::GetUpdateRect(window(), nullptr, FALSE));
    EXPECT_TRUE(m_log.entries.empty()) << "what the owner changes is no news to it";
}

TEST_F(UIListView, SelectionAndFocusStayWithTheirRows)
{
    m_list->selectRows({12, 99, 10, 12});
    EXPECT_EQ((std::vector<int>{10, 12}), m_list->getSelectedRows()) << "in the order shown";
    EXPECT_EQ(12, m_list->getFocusedRow());

    const std::function<void()> changes[] = {
        [&] {
            m_list->sortBy({1, true});
        },
        [&] {
            m_list->insertRow({13, {L"new", L"192.0.2.20"}});
        },
        [&] {
            m_list->updateRow({12, {L"copier", L"192.0.2.1"}});
        },
        [&] { m_list->removeRow(11); },
        [&] { m_list->sortBy({}); },
        [&] { m_list->moveRow(10, 2); },
        [&] { m_list->setRows(sampleRows()); },
    };
    for (const auto& change : changes) {
        change();
        std::vector<int> selected = m_list->getSelectedRows();
        std::sort(selected.begin(), selected.end());
        EXPECT_EQ((std::vector<int>{10, 12}), selected) << ids();
        EXPECT_EQ(12, m_list->getFocusedRow()) << ids();
    }
    {
        const ListViewBase::Update update(*m_list);
        m_list->removeRow(10);
        m_list->insertRow({20, {L"twenty"}}, 0);
        m_list->selectRow(20);
        EXPECT_EQ(20, m_list->getSelectedRow());
    }
    EXPECT_EQ((std::vector<int>{20}), m_list->getSelectedRows());
    m_list->selectRows({});
    EXPECT_FALSE(m_list->getSelectedRow());
    EXPECT_TRUE(m_log.entries.empty());
}

TEST_F(UIListViewForOne, TakesTheFirstOfSeveral)
{
    m_list->selectRows({11, 10});
    EXPECT_EQ((std::vector<int>{11}), m_list->getSelectedRows());
}

TEST_F(UIListView, AClickOnATitleSortsAndTurnsTheArrow)
{
    clickTitle(1);
    EXPECT_EQ("11 10 12", ids());
    EXPECT_EQ(HDF_SORTUP, arrowOf(1));
    clickTitle(1, 10);
    EXPECT_EQ("12 10 11", ids());
    EXPECT_EQ(HDF_SORTDOWN, arrowOf(1));
    clickTitle(0);
    EXPECT_EQ("12 10 11", ids()) << "copier, laser, The ...";
    EXPECT_EQ(HDF_SORTUP, arrowOf(0));
    EXPECT_EQ(0, arrowOf(1));
    EXPECT_EQ((std::vector<std::string>{"layout", "layout", "layout"}), m_log.entries);
    EXPECT_EQ(L"copier", cell(0, 0));
}

TEST_F(UIListView, TellsWhatTheUserDoes)
{
    clickRow(2);
    EXPECT_TRUE(m_log.has("selection"));
    EXPECT_EQ(12, m_list->getSelectedRow());
    clickRow(2);
    EXPECT_TRUE(m_log.has("activated 12"));

    for (const WORD key : {WORD{VK_DELETE}, WORD{VK_F2}, WORD{VK_SPACE}}) {
        o7::test::sendKey(key);
        EXPECT_TRUE(m_log.has("key " + std::to_string(key)));
    }
    m_log.entries.clear();
    o7::test::sendKey(VK_RETURN);
    EXPECT_FALSE(m_log.has("activated 12")) << "Enter is the dialog's";
    m_list->setTakesEnter(true);
    o7::test::sendKey(VK_RETURN);
    EXPECT_TRUE(m_log.has("activated 12"));
    o7::test::sendKey(L'L'); // laser
    EXPECT_EQ(10, m_list->getSelectedRow());
    o7::test::sendKey(VK_END, {VK_SHIFT});
    EXPECT_EQ((std::vector<int>{10, 11, 12}), m_list->getSelectedRows());
    m_list->selectRow(12);
    m_log.entries.clear();
    o7::test::sendKey(L'A', {VK_CONTROL});
    EXPECT_EQ(3U, m_list->getSelectedRows().size());
    EXPECT_TRUE(m_log.has("selection"));
}

TEST_F(UIListView, ChecksRowsByClickAndBySpace)
{
    m_list->showCheckBoxes(true);
    const RECT row = rowOnScreen(1);
    o7::test::sendClick(row.left + 8, (row.top + row.bottom) / 2);
    EXPECT_EQ(INDEXTOSTATEIMAGEMASK(2U), stateOf(1));
    EXPECT_EQ(INDEXTOSTATEIMAGEMASK(1U), stateOf(0));
    EXPECT_TRUE(m_log.has("checked 11"));
    o7::test::sendClick(row.left + 8, (row.top + row.bottom) / 2);
    EXPECT_TRUE(m_log.has("unchecked 11"));

    m_log.entries.clear();
    m_list->setRowChecked(12, true);
    m_list->selectRows({10, 12});
    o7::test::sendKey(VK_SPACE);
    EXPECT_EQ((std::vector<std::string>{"checked 10", "key 32"}), m_log.entries);
    o7::test::sendKey(VK_SPACE);
    EXPECT_TRUE(m_log.has("unchecked 10"));
    EXPECT_TRUE(m_log.has("unchecked 12"));
}

TEST_F(UIListView, DrawsUnavailableRowsInTheSystemsGrey)
{
    m_list->setRowUnavailable(11, true);
    for (const bool isEnabled : {true, false}) {
        m_list->setEnable(isEnabled);
        EXPECT_EQ(::GetSysColor(isEnabled ? COLOR_WINDOW : COLOR_BTNFACE),
                  static_cast<COLORREF>(::SendMessageW(window(), LVM_GETBKCOLOR, 0, 0)));
        for (int row = 0; row < 3; ++row) {
            NMLVCUSTOMDRAW drawing{};
            drawing.nmcd.hdr = {window(), kId, NM_CUSTOMDRAW};
            drawing.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
            drawing.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
            drawing.nmcd.uItemState = CDIS_SELECTED | CDIS_FOCUS;
            drawing.clrText = CLR_DEFAULT;
            ::SendMessageW(m_page.page(), WM_NOTIFY, kId, reinterpret_cast<LPARAM>(&drawing));
            const bool isGrey = row == 1 || !isEnabled;
            EXPECT_EQ(isGrey ? ::GetSysColor(COLOR_GRAYTEXT) : CLR_DEFAULT, drawing.clrText);
            EXPECT_EQ(isGrey ? 0U : UINT{CDIS_SELECTED}, drawing.nmcd.uItemState & CDIS_SELECTED);
        }
    }
}

TEST_F(UIListView, ColumnsFillTheListUntilTheyAreGivenWidths)
{
    const auto sum = [this] {
        int total = 0;
        for (const int width : m_list->getColumnWidths()) {
            total += width;
        }
        return total;
    };
    const auto room = [this] {
        RECT client{};
        ::GetClientRect(window(), &client);
        return static_cast<int>(client.right);
    };
    const int address = m_page.pixels(0, 0, 60, 0).right;
    EXPECT_EQ(room(), sum());
    EXPECT_EQ(address, m_list->getColumnWidths()[1]);
    m_list->setSize({200, 70});
    EXPECT_EQ(room(), sum());
    const int wide = room();
    m_list->setRows(manyRows(100));
    EXPECT_LT(room(), wide) << "a scroll bar";
    EXPECT_EQ(room(), sum());
    EXPECT_EQ(address, m_list->getColumnWidths()[1]);

    for (const auto& unusable : {std::vector<int>{}, {10}, {10, 0}, {10, 10, 10}}) {
        EXPECT_FALSE(m_list->setColumnWidths(unusable));
    }
    EXPECT_TRUE(m_list->setColumnWidths({50, 70}));
    m_list->setSize({230, 70});
    EXPECT_EQ((std::vector<int>{50, 70}), m_list->getColumnWidths());
}

TEST_F(UIListView, AMenuIsWantedForTheRowUnderTheMouseOrWithTheFocus)
{
    const RECT row = rowOnScreen(1);
    const auto ask = [this](LPARAM place) {
        ::SendMessageW(m_page.page(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window()), place);
    };
    ask(MAKELPARAM(row.left + 5, row.top + 2));
    EXPECT_EQ(row.left + 5, m_log.menuPlace.x);
    EXPECT_EQ(row.top + 2, m_log.menuPlace.y);
    ask(MAKELPARAM(row.left + 5, row.bottom + 200));
    m_list->selectRow(12);
    ask(-1); // from the keyboard
    EXPECT_EQ(rowOnScreen(2).bottom, m_log.menuPlace.y);
    EXPECT_EQ((std::vector<std::string>{"menu 11", "menu", "menu 12"}), m_log.entries);
}

TEST_F(UIListView, TipsShowTheTextsThatAreCutOff)
{
    EXPECT_EQ(kLongName, m_list->createToolTipText(1));
    EXPECT_EQ(L"", m_list->createToolTipText(0));
    EXPECT_EQ(L"", m_list->createToolTipText(99));
    m_tips.SetInitialTime(TTDT_INITIAL, 20);
    EXPECT_FALSE(restOnRow(1)) << "off at first";
    m_list->setEnableTooltips(true);
    EXPECT_FALSE(restOnRow(0));
    EXPECT_TRUE(restOnRow(1));
    EXPECT_EQ(kLongName, tipText());
    RECT tip{};
    ::GetWindowRect(m_tips.getHwnd(), &tip);
    EXPECT_NEAR(rowOnScreen(1).bottom, tip.top, 1);
    EXPECT_NEAR(rowOnScreen(1).left + 20, tip.left, 1);
    restOnRow(0);
    EXPECT_FALSE(isTipShown());

    // The keyboard shows it at once, wherever the mouse rests.
    m_list->selectRow(10);
    o7::test::sendKey(VK_DOWN);
    POINT mouse{};
    ::GetCursorPos(&mouse);
    ::ScreenToClient(window(), &mouse);
    ::SendMessageW(window(), WM_MOUSEMOVE, 0, MAKELPARAM(mouse.x, mouse.y)); // it has not moved
    EXPECT_TRUE(isTipShown());
    EXPECT_EQ(kLongName, tipText());
    o7::test::sendKey(VK_DOWN);
    EXPECT_FALSE(isTipShown());
    o7::test::sendKey(VK_UP);
    EXPECT_TRUE(isTipShown());
    m_list->removeRow(11);
    EXPECT_FALSE(isTipShown());
    m_list->insertRow(sampleRows()[1], 1);
    o7::test::sendKey(VK_HOME);
    o7::test::sendKey(VK_DOWN);
    EXPECT_TRUE(isTipShown());
    ::SetFocus(m_page.page());
    EXPECT_FALSE(isTipShown());
}

TEST_F(UIListView, AMirroredListShowsItsTipsMirrored)
{
    ::SetWindowLongPtrW(m_page.page(), GWL_EXSTYLE, WS_EX_LAYOUTRTL);
    m_page.handler = nullptr;
    m_list =
        std::make_unique<UIListViewControl>(m_page.page(), kId, m_page.services(), m_page.font(),
                                            POINT{7, 7}, SIZE{130, 70}, DWORD{0}, m_tips);
    m_page.handler = m_list.get();
    m_list->setColumnsInDialogUnits(sampleColumns());
    m_list->setRows(sampleRows());
    m_list->setEnableTooltips(true);
    m_list->selectRow(10);
    ::SetFocus(window());
    o7::test::sendKey(VK_DOWN);
    ASSERT_TRUE(isTipShown());
    RECT tip{};
    ::GetWindowRect(m_tips.getHwnd(), &tip);
    const RECT row = rowOnScreen(1);
    EXPECT_LE(tip.right, row.right);
    EXPECT_GT(tip.right, row.right - 20);
    EXPECT_NEAR(row.bottom, tip.top, 1);
}

/// The shortest of some rounds: others work on the machine as well.
double milliseconds(int rounds, const std::function<void(int)>& act)
{
    double shortest = 1e9;
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        act(round);
        const std::chrono::duration<double, std::milli> taken =
            std::chrono::steady_clock::now() - start;
        shortest = std::min(shortest, taken.count());
    }
    return shortest;
}

/// What this thread has had of the processor; what others take of it does not count.
double processorMilliseconds()
{
    constexpr double kUnitsPerMillisecond = 10'000;
    FILETIME times[4] = {};
    ::GetThreadTimes(::GetCurrentThread(), &times[0], &times[1], &times[2], &times[3]);
    const auto units = [](const FILETIME& time) {
        return time.dwHighDateTime * 4294967296.0 + time.dwLowDateTime;
    };
    return (units(times[2]) + units(times[3])) / kUnitsPerMillisecond;
}

TEST_F(UIListView, TwentyThousandRowsAreSelectedAndChangedAtOnce)
{
    constexpr int kCount = 20'000;
    m_list->showCheckBoxes(true);
    m_list->setRows(manyRows(kCount));
    std::vector<int> all(kCount);
    std::iota(all.begin(), all.end(), 0);
    constexpr int kRounds = 5;
    double taken = 0;
    for (int round = 0; round < kRounds; ++round) {
        m_list->selectRows({});
        const double before = processorMilliseconds();
        m_list->selectRows(all);
        taken += processorMilliseconds() - before;
    }
    EXPECT_LE(taken / kRounds, 50);
    EXPECT_EQ(all, m_list->getSelectedRows());
    const std::pair<const char*, std::function<void(int)>> changes[] = {
        {"unavailable", [&](int n) { m_list->setRowUnavailable(5, n % 2 == 0); }},
        {"checked", [&](int n) { m_list->setRowChecked(kCount - 1, n % 2 == 0); }},
        {"text",
         [&](int n) {
             m_list->updateRow({7, {CXString::Formatted(L"%d", n), L""}});
         }},
    };
    for (const auto& [what, change] : changes) {
        EXPECT_LE(milliseconds(9, change), 1) << what;
    }
    EXPECT_LE(milliseconds(1, [](int) { o7::test::sendKey(VK_SPACE); }), 1000) << "all marks";
    EXPECT_TRUE(m_list->getRows().at(kCount / 2)->isChecked);
    m_list->removeRow(3);
    all.erase(all.begin() + 3);
    EXPECT_EQ(all, m_list->getSelectedRows());
    m_list->insertRow({kCount, {L"new", L""}}, 0);
    EXPECT_EQ(all, m_list->getSelectedRows());
}

TEST_F(UIListView, TellsItsColumnsAndRows)
{
    m_list->sortBy({1, true});
    m_list->setRowUnavailable(10, true);
    m_list->setRowChecked(12, true);
    m_list->selectRow(10);
    EXPECT_EQ(L"list view 42 \"\" 3 rows\n"
              L"  columns \"Name\" \"Address\" descending\n"
              L"  row 12 \"copier\" \"192.0.2.30\" checked\n"
              L"  row 10 \"laser\" \"192.0.2.10\" selected unavailable\n"
              L"  row 11 \"" +
                  std::wstring(kLongName) + L"\" \"192.0.2.9\"\n",
              o7::test::dumpOf(*m_list));
}

/// Everything that can be asked of a list.
void useAll(UIListViewControl& list)
{
    list.setColumnsInDialogUnits(sampleColumns());
    list.setRows(sampleRows());
    list.insertRow({1, {L"one"}});
    list.updateRow({1, {L"two"}});
    list.sortBy({0, false});
    list.selectRows({1, 10});
    list.setRowChecked(1, true);
    list.setRowUnavailable(1, true);
    list.showCheckBoxes(true);
    list.setEnableTooltips(true);
    list.setEmptyText(L"nothing");
    list.fitColumns();
    list.moveRow(1, 0);
    list.removeRow(1);
    list.setSize({9, 9});
    list.setEnable(false);
    EXPECT_EQ(3, list.getRows().count());
    EXPECT_EQ(L"", list.createToolTipText(99));
    o7::test::dumpOf(list);
}

TEST_F(UIListView, IsHarmlessWithoutItsWindow)
{
    UIListViewControl orphan(nullptr, kId, m_page.services(), m_page.font(), {1, 2}, {3, 4}, 0,
                             m_tips);
    EXPECT_EQ(nullptr, orphan.getHwnd());
    m_page.destroyWindows();
    EXPECT_EQ(nullptr, window()) << "the page took it along";
    for (UIListViewControl* list : {&orphan, m_list.get()}) {
        useAll(*list);
        EXPECT_TRUE(list->getSelectedRows().empty());
        EXPECT_FALSE(list->getFocusedRow());
        EXPECT_TRUE(list->getColumnWidths().empty());
        EXPECT_FALSE(list->setColumnWidths({10, 10}));
        NMHDR notification{nullptr, kId, LVN_KEYDOWN};
        EXPECT_FALSE(list->handleMessage({UIMessageKind::Dialog, nullptr, WM_NOTIFY, kId,
                                          reinterpret_cast<LPARAM>(&notification)}));
    }
}

TEST_F(UIListView, TwentyCyclesLeaveNothingBehind)
{
    const auto cycle = [this] {
        UIListViewControl list(m_page.page(), kId, m_page.services(), m_page.font(), {7, 7},
                               {100, 50}, 0, m_tips);
        m_page.handler = &list;
        useAll(list);
        ::UpdateWindow(list.getHwnd());
        m_page.handler = nullptr;
    };
    for (int i = 0; i < 3; ++i) {
        cycle();
        o7::test::pumpMessages();
    }
    const o7::test::ResourceGuard guard;
    for (int i = 0; i < 20; ++i) {
        cycle();
    }
}

} // namespace
