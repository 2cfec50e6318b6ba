// What combo box and list box have in common, on both: entries, grey ones, input, drawing.

#include "uicomboboxcontrol.h"
#include "uilistboxcontrol.h"

#include "cxstring.h"
#include "input.h"
#include "itemrecord.h"
#include "testpage.h"
#include "uitooltips.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

namespace {

using o7::test::TestPage;

constexpr int kId = 77;

enum class Kind
{
    ClosedCombo,
    OpenCombo,
    ListBox
};

/// A list on a page that draws it, with entries of its own.
class Rig
{
public:
    /// @param pageStyle  extended style that the page gets besides
    explicit Rig(Kind kind, LONG_PTR pageStyle = 0) : m_kind(kind)
    {
        ::SetWindowLongPtrW(m_page.page(), GWL_EXSTYLE, WS_EX_CONTROLPARENT | pageStyle);
        if (kind == Kind::ListBox) {
            list = std::make_unique<UIListBoxControl>(m_page.page(), kId, m_page.services(),
                                                      m_page.font(), POINT{10, 10}, SIZE{60, 90}, 0,
                                                      true);
        } else {
            list = std::make_unique<UIComboBoxControl>(m_page.page(), kId, m_page.services(),
                                                       m_page.font(), POINT{10, 10}, SIZE{60, 14});
        }
        m_page.onMessage = [this](const _UIWindowsMessage& message) {
            if (list) {
                list->handleMessage(message);
            }
        };
    }
    ~Rig() { list.reset(); }
    Rig(const Rig&) = delete;
    Rig& operator=(const Rig&) = delete;

    /// Adds entries with ids 10, 11, ... A text in capital letters is an unavailable one.
    void fill(std::initializer_list<const wchar_t*> texts)
    {
        for (const wchar_t* text : texts) {
            const auto number = static_cast<int>(m_used);
            records[m_used] = {10 + number, text[0] >= L'A' && text[0] <= L'Z'};
            EXPECT_EQ(number, list->addItem(text));
            list->setItemData(number, &records[m_used++]);
        }
    }
    /// Gives it the keyboard, and drops it when it is to be open.
    void attend()
    {
        ::SetCursorPos(1000, 1000); // where it points at nothing
        ::SetForegroundWindow(::GetAncestor(m_page.page(), GA_ROOT));
        ::SetFocus(window());
        if (m_kind == Kind::OpenCombo) {
            ::SendMessageW(window(), CB_SHOWDROPDOWN, TRUE, 0);
        }
        o7::test::pumpUntilQuiet();
        m_page.commands.clear();
    }
    HWND window() const { return list->UIControl::getHwnd(); }
    HWND entries() const
    {
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(window(), &info);
        return m_kind == Kind::ListBox ? window() : info.hwndList;
    }
    /// The middle of an entry, on the screen.
    POINT middleOf(int index) const
    {
        RECT entry{};
        ::SendMessageW(entries(), LB_GETITEMRECT, static_cast<WPARAM>(index),
                       reinterpret_cast<LPARAM>(&entry));
        POINT middle{(entry.left + entry.right) / 2, (entry.top + entry.bottom) / 2};
        ::ClientToScreen(entries(), &middle);
        return middle;
    }
    bool isDropped() const { return ::SendMessageW(window(), CB_GETDROPPEDSTATE, 0, 0) != FALSE; }
    /// How often the parent was told of a new choice.
    std::ptrdiff_t toldChanges() const
    {
        const int code = m_kind == Kind::ListBox ? LBN_SELCHANGE : CBN_SELCHANGE;
        return std::count(m_page.commands.begin(), m_page.commands.end(),
                          TestPage::Command{kId, code});
    }
    TestPage& page() { return m_page; }

    std::array<ItemRecord, 64> records{};
    std::unique_ptr<UIEntryListControl> list;

private:
    Kind m_kind;
    TestPage m_page;
    std::size_t m_used = 0;
};

class EntryList : public testing::TestWithParam<Kind>
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, EntryList,
                         testing::Values(Kind::ClosedCombo, Kind::OpenCombo, Kind::ListBox));

TEST_P(EntryList, AnswersNeutrallyWhenEmpty)
{
    const Rig rig(GetParam());
    IComboListControl& list = *rig.list;
    list.setSelection(3);
    EXPECT_EQ(-1, list.getSelection(true));
    EXPECT_EQ(0, list.getSelection(false));
    EXPECT_EQ(-1, list.findItemById(10));
    for (const int index : {-1, 0, 9}) {
        EXPECT_EQ(nullptr, list.getItemData(index));
        EXPECT_TRUE(list.getItemText(index).IsEmpty());
        list.setItemUnavailable(true, index);
        EXPECT_FALSE(list.isItemAvailable(index));
    }
}

TEST_P(EntryList, KeepsTextsRecordsAndTheSelection)
{
    Rig rig(GetParam());
    IComboListControl& list = *rig.list;
    rig.fill({L"a4", L"letter", L"FOLIO"});
    EXPECT_EQ(3, list.addItem(L"no record"));
    EXPECT_EQ(4, list.getCount());
    EXPECT_EQ(L"letter", list.getItemText(1));
    EXPECT_EQ(&rig.records[1], list.getItemData(1));
    EXPECT_EQ(nullptr, list.getItemData(3));

    EXPECT_EQ(2, list.findItemById(12));
    list.setItemData(1, nullptr); // an entry without a record is passed over
    EXPECT_EQ(2, list.findItemById(12));
    EXPECT_EQ(-1, list.findItemById(11));

    constexpr bool kAvailable[] = {true, false, false, false, false};
    for (int index = 0; index < 5; ++index) {
        EXPECT_EQ(kAvailable[index], list.isItemAvailable(index)) << index;
    }

    list.setSelection(2);
    EXPECT_EQ(2, list.getSelection(false));
    for (const int nothing : {-1, 99, -7}) {
        list.setSelection(1);
        list.setSelection(nothing);
        EXPECT_EQ(0, list.getSelection(false));
        EXPECT_EQ(-1, list.getSelection(true));
    }
    EXPECT_TRUE(rig.page().commands.empty()) << "filling and selecting from code is silent";

    list.removeAllItems();
    EXPECT_EQ(0, list.getCount());
}

TEST_P(EntryList, GivesTextsAwayUpTo258Characters)
{
    const Rig rig(GetParam());
    int index = 0;
    for (const int length : {258, 259, 400}) {
        rig.list->addItem(
            CXString(std::wstring_view(std::wstring(static_cast<std::size_t>(length), L'x'))));
        EXPECT_EQ(length == 258 ? 258 : 0, rig.list->getItemText(index++).GetLength());
    }
}

// Some answers of the system have 16 bits.
TEST(LongEntryList, EntriesBeyond65535AreGreyAsOthers)
{
    Rig rig(Kind::ListBox);
    constexpr int kCount = 66000;
    std::vector<ItemRecord> records(kCount, ItemRecord{1, false});
    records[kCount - 2].unavailable = true;
    ::SendMessageW(rig.window(), WM_SETREDRAW, FALSE, 0);
    for (ItemRecord& record : records) {
        rig.list->setItemData(rig.list->addItem(L"x"), &record);
    }
    ::SendMessageW(rig.window(), WM_SETREDRAW, TRUE, 0);
    rig.attend();
    rig.list->setSelection(kCount - 1);
    const auto click = [&](int index) {
        const POINT at = rig.middleOf(index);
        o7::test::sendClick(at.x, at.y);
        return rig.list->getSelection(true);
    };
    EXPECT_EQ(kCount - 1, click(kCount - 2));
    EXPECT_EQ(kCount - 3, click(kCount - 3));
}

TEST_P(EntryList, RepaintsOnceWhenAnEntryBecomesUnavailable)
{
    Rig rig(GetParam());
    rig.fill({L"a4", L"letter"});
    rig.attend();
    for (const bool unavailable : {true, false}) {
        for (const bool isNew : {true, false}) {
            for (const HWND window : {rig.window(), rig.entries()}) {
                ::ValidateRect(window, nullptr);
            }
            rig.list->setItemUnavailable(unavailable, 1);
            for (const HWND window : {rig.window(), rig.entries()}) {
                const bool isSeen = ::IsWindowVisible(window) != FALSE;
                EXPECT_EQ(isNew && isSeen, ::GetUpdateRect(window, nullptr, FALSE) != FALSE);
            }
            EXPECT_EQ(!unavailable, rig.list->isItemAvailable(1));
        }
    }
}

struct KeyRow
{
    const char* what = "";
    std::initializer_list<const wchar_t*> entries{}; ///< in capitals: unavailable
    int selected = 0;
    std::vector<WORD> keys;
    int expected = 0;
};

const KeyRow kKeyRows[] = {
    {"down over two", {L"a", L"B", L"C", L"d"}, 0, {VK_DOWN}, 3},
    {"up over one", {L"a", L"B", L"c"}, 2, {VK_UP}, 0},
    {"nothing beyond", {L"a", L"B"}, 0, {VK_DOWN, VK_END, VK_NEXT}, 0},
    {"nothing before", {L"A", L"b"}, 1, {VK_UP, VK_HOME, VK_PRIOR}, 1},
    {"plain step", {L"a", L"b", L"C"}, 0, {VK_DOWN}, 1},
    {"from nothing", {L"A", L"b"}, -1, {VK_DOWN}, 1},
    {"from a grey one", {L"a", L"B", L"C", L"d"}, 1, {VK_DOWN}, 3},
    {"to the end", {L"a", L"b", L"c", L"D", L"E"}, 0, {VK_END}, 2},
    {"to the start", {L"A", L"B", L"c", L"d", L"e"}, 4, {VK_HOME}, 2},
    {"a page on", {L"a", L"b", L"c", L"D"}, 0, {VK_NEXT}, 2},
    {"a page back", {L"A", L"b", L"c", L"d"}, 3, {VK_PRIOR}, 1},
    {"a letter", {L"x", L"TA", L"tb"}, 0, {'T'}, 2},
    {"several letters", {L"x", L"tab", L"TACK", L"tacked"}, 0, {'T', 'A', 'C'}, 3},
    {"letters that the selected one has", {L"tab", L"tack"}, 0, {'T', 'A'}, 1},
    {"one letter goes round", {L"ta", L"TB", L"tc", L"x"}, 0, {'T', 'T'}, 0},
    {"a letter that only grey ones have", {L"x", L"TA", L"TB"}, 0, {'T'}, 0},
    {"a letter that none has", {L"x", L"y"}, 1, {'Q'}, 1},
};

TEST_P(EntryList, KeysPassOverUnavailableEntries)
{
    for (const KeyRow& row : kKeyRows) {
        SCOPED_TRACE(row.what);
        Rig rig(GetParam());
        rig.fill(row.entries);
        rig.list->setSelection(row.selected);
        rig.attend();
        for (const WORD key : row.keys) {
            o7::test::sendKey(key);
        }
        EXPECT_EQ(row.expected, rig.list->getSelection(true));
        if (row.keys.size() == 1 || row.expected == row.selected) {
            EXPECT_LE(row.expected != row.selected ? 1 : 0, rig.toldChanges());
        }
    }
}

TEST_P(EntryList, AClickOnAnUnavailableEntryTakesNothing)
{
    if (GetParam() == Kind::ClosedCombo) {
        return; // has no entries to click
    }
    Rig rig(GetParam());
    rig.fill({L"a", L"b", L"COATED", L"d"});
    rig.list->setSelection(1);
    rig.attend();
    const POINT grey = rig.middleOf(2);
    o7::test::sendClick(grey.x, grey.y);
    EXPECT_EQ(1, rig.list->getSelection(true));
    EXPECT_EQ(0, rig.toldChanges());
    EXPECT_EQ(GetParam() == Kind::OpenCombo, rig.isDropped()) << "the list waits for a choice";
    if (GetParam() == Kind::OpenCombo) {
        o7::test::sendKey(VK_RETURN);
        EXPECT_EQ(1, rig.list->getSelection(true));
        rig.attend();
    }
    const POINT other = rig.middleOf(3);
    o7::test::sendClick(other.x, other.y);
    EXPECT_EQ(3, rig.list->getSelection(true));
    EXPECT_EQ(1, rig.toldChanges());
    EXPECT_FALSE(rig.isDropped());
}

TEST_P(EntryList, TellsWhyAnEntryIsUnavailable)
{
    Rig rig(GetParam());
    UIToolTips tips(rig.page().page());
    rig.list->setUnavailableReasons(
        &tips, [](int index) { return CXString::Formatted(L"reason %d", index); });
    rig.fill({L"a", L"BOND", L"COATED", L"d"});
    rig.list->setSelection(0);
    rig.attend();
    const auto isShown = [&] { return ::IsWindowVisible(tips.getHwnd()) != FALSE; };
    EXPECT_FALSE(isShown());
    o7::test::sendKey(VK_DOWN); // passes over two
    EXPECT_EQ(3, rig.list->getSelection(true));
    EXPECT_EQ(GetParam() != Kind::ClosedCombo, isShown());
    if (GetParam() == Kind::ClosedCombo) {
        return;
    }
    o7::test::sendKey(VK_UP);
    o7::test::sendKey(VK_UP);
    EXPECT_FALSE(isShown()) << "nothing was passed over";

    const POINT grey = rig.middleOf(2);
    ::SetCursorPos(grey.x, grey.y);
    EXPECT_TRUE(o7::test::pumpUntil(isShown));
    RECT tip{};
    RECT list{};
    ::GetWindowRect(tips.getHwnd(), &tip);
    ::GetWindowRect(rig.entries(), &list);
    EXPECT_LE(list.right, tip.left);
    EXPECT_NEAR(grey.y, tip.top, tip.bottom - tip.top);
    const POINT other = rig.middleOf(3);
    ::SetCursorPos(other.x, other.y);
    EXPECT_TRUE(o7::test::pumpUntil([&] { return !isShown(); }));

    ::SetCursorPos(grey.x, grey.y);
    EXPECT_TRUE(o7::test::pumpUntil(isShown));
    if (GetParam() == Kind::OpenCombo) {
        o7::test::sendKey(VK_ESCAPE);
    } else {
        ::SetCursorPos(list.right + 50, list.bottom + 50);
    }
    EXPECT_TRUE(o7::test::pumpUntil([&] { return !isShown(); }));
}

TEST_P(EntryList, OnAMirroredPageTheReasonStandsToTheLeft)
{
    if (GetParam() == Kind::ClosedCombo) {
        return;
    }
    Rig rig(GetParam(), WS_EX_LAYOUTRTL);
    UIToolTips tips(rig.page().page());
    rig.list->setUnavailableReasons(&tips, [](int) { return CXString(L"why"); });
    rig.fill({L"a", L"BOND", L"c"});
    rig.list->setSelection(0);
    rig.attend();
    const POINT grey = rig.middleOf(1);
    ::SetCursorPos(grey.x, grey.y);
    ASSERT_TRUE(o7::test::pumpUntil([&] { return ::IsWindowVisible(tips.getHwnd()) != FALSE; }));
    RECT tip{};
    RECT list{};
    ::GetWindowRect(tips.getHwnd(), &tip);
    ::GetWindowRect(rig.entries(), &list);
    EXPECT_GE(list.left, tip.right);
    o7::test::sendClick(grey.x, grey.y);
    EXPECT_EQ(0, rig.list->getSelection(true));
}

constexpr RECT kArea{0, 0, 80, 20};

bool shows(HDC dc, COLORREF colour)
{
    for (int at = 0; at < kArea.right * kArea.bottom; ++at) {
        if (::GetPixel(dc, at % kArea.right, at / kArea.right) == colour) {
            return true;
        }
    }
    return false;
}

struct DrawRow
{
    const char* what;
    UINT item;
    UINT state;
    int background;
    int text; ///< system colours
};

TEST_P(EntryList, DrawsItsEntriesInTheSystemsColours)
{
    constexpr auto kNone = static_cast<UINT>(-1);
    constexpr UINT kChosen = ODS_SELECTED | ODS_NOFOCUSRECT;
    constexpr DrawRow kRows[] = {
        {"usual", 0, 0, COLOR_WINDOW, COLOR_WINDOWTEXT},
        {"chosen", 0, kChosen, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT},
        {"unavailable", 1, 0, COLOR_WINDOW, COLOR_GRAYTEXT},
        {"unavailable under the highlight", 1, kChosen, COLOR_WINDOW, COLOR_GRAYTEXT},
        {"disabled", 0, ODS_DISABLED, COLOR_BTNFACE, COLOR_GRAYTEXT},
        {"nothing", kNone, 0, COLOR_WINDOW, COLOR_WINDOW},
    };
    Rig rig(GetParam());
    rig.fill({L"HHHH", L"IIII"});
    rig.records[0].unavailable = false;
    const HDC screen = ::GetDC(nullptr);
    const o7::UniqueMemoryDc dc(::CreateCompatibleDC(screen));
    const o7::UniqueBitmap bitmap(::CreateCompatibleBitmap(screen, kArea.right, kArea.bottom));
    const o7::SelectedObject selected(dc.get(), bitmap.get());
    ::ReleaseDC(nullptr, screen);
    for (const DrawRow& row : kRows) {
        SCOPED_TRACE(row.what);
        ::PatBlt(dc.get(), 0, 0, kArea.right, kArea.bottom, BLACKNESS);
        DRAWITEMSTRUCT item{};
        item.itemID = row.item;
        item.itemState = row.state;
        item.hwndItem = rig.window();
        item.hDC = dc.get();
        item.rcItem = kArea;
        item.itemData =
            row.item == kNone ? ~ULONG_PTR{} : reinterpret_cast<ULONG_PTR>(&rig.records[row.item]);
        _UIWindowsMessage message;
        message.message = WM_DRAWITEM;
        message.lParam = reinterpret_cast<LPARAM>(&item);
        EXPECT_TRUE(rig.list->handleMessage(message));
        EXPECT_EQ(TRUE, message.result);
        EXPECT_EQ(::GetSysColor(row.background),
                  ::GetPixel(dc.get(), kArea.right - 2, kArea.bottom - 2));
        EXPECT_TRUE(shows(dc.get(), ::GetSysColor(row.text)));
        item.hwndItem = rig.page().page();
        EXPECT_FALSE(rig.list->handleMessage(message)) << "somebody else's entry";
    }
}

} // namespace
