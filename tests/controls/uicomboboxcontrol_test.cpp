#include "uicomboboxcontrol.h"

#include "cxstring.h"
#include "itemrecord.h"
#include "messagerecorder.h"
#include "testpage.h"
#include "textmeasure.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>

namespace {

using o7::test::TestPage;

constexpr int kId = 77;

class UIComboBox : public testing::Test
{
protected:
    /// Adds entries with ids 10, 11, ... A text in capital letters is an unavailable one.
    void fill(std::initializer_list<const wchar_t*> texts)
    {
        for (const wchar_t* text : texts) {
            const auto number = static_cast<int>(m_used);
            m_records[m_used] = {10 + number, text[0] >= L'A' && text[0] <= L'Z'};
            EXPECT_EQ(number, m_list.addItem(text));
            m_list.setItemData(number, &m_records[m_used++]);
        }
    }
    int droppedWidth()
    {
        return static_cast<int>(::SendMessageW(m_list.getHwnd(), CB_GETDROPPEDWIDTH, 0, 0));
    }

    int widthFor(const wchar_t* text)
    {
        const o7::TextMeasure measure(m_page.font());
        return measure.measure(text).cx + measure.measure(L"M").cx;
    }

    TestPage m_page;
    std::array<ItemRecord, 64> m_records{};
    std::size_t m_used = 0;
    UIComboBoxControl m_combo{m_page.page(), kId,      m_page.services(),
                              m_page.font(), {10, 10}, {60, 14}};
    IComboListControl& m_list = m_combo;
};

TEST_F(UIComboBox, AnswersNeutrallyWhenEmpty)
{
    EXPECT_EQ(-1, m_list.getSelection(true));
    EXPECT_EQ(0, m_list.getSelection(false));
    EXPECT_EQ(nullptr, m_list.getItemData(0));
    EXPECT_TRUE(m_list.getItemText(0).IsEmpty());
    m_list.setItemUnavailable(true, 0);
    EXPECT_FALSE(m_list.isItemAvailable(0));
}

TEST_F(UIComboBox, KeepsTextsRecordsAndTheSelection)
{
    fill({L"a4", L"letter", L"FOLIO"});
    EXPECT_EQ(3, m_list.addItem(L"no record"));
    EXPECT_EQ(4, m_list.getCount());
    EXPECT_EQ(L"letter", m_list.getItemText(1));
    EXPECT_EQ(&m_records[1], m_list.getItemData(1));
    EXPECT_EQ(nullptr, m_list.getItemData(3));
    EXPECT_EQ(nullptr, m_list.getItemData(9));

    EXPECT_EQ(2, m_list.findItemById(12));
    m_list.setItemData(1, nullptr); // an entry without a record is passed over
    EXPECT_EQ(2, m_list.findItemById(12));
    EXPECT_EQ(-1, m_list.findItemById(11));

    constexpr bool kAvailable[] = {true, false, false, false, false};
    for (int index = 0; index < 5; ++index) {
        EXPECT_EQ(kAvailable[index], m_list.isItemAvailable(index)) << index;
    }

    m_list.setSelection(2);
    EXPECT_EQ(2, m_list.getSelection(false));
    m_list.setSelection(-1);
    EXPECT_EQ(0, m_list.getSelection(false));
    EXPECT_EQ(-1, m_list.getSelection(true));
    EXPECT_TRUE(m_page.commands.empty()) << "filling and selecting from code is silent";

    m_list.removeAllItems();
    EXPECT_EQ(0, m_list.getCount());
}

TEST_F(UIComboBox, GivesTextsAwayUpTo258Characters)
{
    int index = 0;
    for (const int length : {258, 259, 400}) {
        m_list.addItem(
            CXString(std::wstring_view(std::wstring(static_cast<std::size_t>(length), L'x'))));
        EXPECT_EQ(length == 258 ? 258 : 0, m_list.getItemText(index++).GetLength());
    }
}

TEST_F(UIComboBox, TakesTheHeightOfItsFont)
{
    const int height = o7::TextMeasure(m_page.font()).fontHeight();
    EXPECT_EQ(height, ::SendMessageW(m_list.getHwnd(), CB_GETITEMHEIGHT, 0, 0));
    // Some systems count the border lines of the selection field in.
    const auto field =
        ::SendMessageW(m_list.getHwnd(), CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0);
    EXPECT_GE(field, height);
    EXPECT_LE(field, height + 2);
}

TEST_F(UIComboBox, RepaintsOnceWhenAnEntryBecomesUnavailable)
{
    fill({L"a4", L"letter"});
    for (const bool unavailable : {true, false}) {
        for (const bool isNew : {true, false}) {
            ::ValidateRect(m_list.getHwnd(), nullptr);
            m_list.setItemUnavailable(unavailable, 1);
            EXPECT_EQ(isNew, ::GetUpdateRect(m_list.getHwnd(), nullptr, FALSE) != FALSE);
            EXPECT_EQ(!unavailable, m_list.isItemAvailable(1));
        }
    }
}

TEST_F(UIComboBox, DropsAsWideAsItsWidestEntryAndItsScrollBar)
{
    const int narrow = droppedWidth();
    fill({L"a4"});
    EXPECT_EQ(narrow, droppedWidth());

    const wchar_t* wide = L"a rather long name of a paper that does not fit";
    const int widest = widthFor(wide);
    fill({wide});
    EXPECT_EQ(widest, droppedWidth());

    const auto minVisible =
        static_cast<int>(::SendMessageW(m_list.getHwnd(), CB_GETMINVISIBLE, 0, 0));
    while (m_list.getCount() < minVisible) {
        fill({L"b5"});
        EXPECT_EQ(widest, droppedWidth());
    }
    fill({L"one more"});
    EXPECT_EQ(widest + ::GetSystemMetrics(SM_CXVSCROLL), droppedWidth());
}

TEST_F(UIComboBox, FillsManyEntriesWithOneChangeOfWidth)
{
    const wchar_t* longest = L"the longest name that any paper has had so far";
    const o7::test::MessageRecorder recorder(m_list.getHwnd(), {CB_SETDROPPEDWIDTH});
    {
        const UIComboBoxControl::Fill filling(m_combo);
        fill({L"a rather long name of a paper", longest});
        EXPECT_TRUE(recorder.messages().empty());
    }
    EXPECT_EQ(1U, recorder.messages().size());
    EXPECT_EQ(widthFor(longest), droppedWidth());
}

TEST_F(UIComboBox, ArrowKeysPassOverUnavailableEntries)
{
    struct Row
    {
        const char* what = "";
        std::initializer_list<const wchar_t*> entries{}; ///< in capitals: unavailable
        int selected = 0;
        WPARAM key = 0;
        int expected = 0;
    };
    const Row rows[] = {
        {"down over two", {L"a", L"B", L"C", L"d"}, 0, VK_DOWN, 3},
        {"up over one", {L"a", L"B", L"c"}, 2, VK_UP, 0},
        {"nothing beyond", {L"a", L"B"}, 0, VK_DOWN, 0},
        {"plain step", {L"a", L"b", L"C"}, 0, VK_DOWN, 1},
        {"from nothing", {L"A", L"b"}, -1, VK_DOWN, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        m_list.removeAllItems();
        m_used = 0;
        fill(row.entries);
        m_list.setSelection(row.selected);
        m_page.commands.clear();
        ::SendMessageW(m_list.getHwnd(), WM_KEYDOWN, row.key, 0);
        EXPECT_EQ(row.expected, m_list.getSelection(true));
        const bool told = std::count(m_page.commands.begin(), m_page.commands.end(),
                                     TestPage::Command{kId, CBN_SELCHANGE}) == 1;
        EXPECT_EQ(row.expected != row.selected, told);
    }
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

TEST_F(UIComboBox, DrawsItsEntriesInTheSystemsColours)
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
    fill({L"HHHH", L"IIII"});
    m_records[0].unavailable = false;
    const HDC screen = ::GetDC(nullptr);
    const o7::UniqueMemoryDc dc(::CreateCompatibleDC(screen));
    const o7::UniqueBitmap bitmap(::CreateCompatibleBitmap(screen, kArea.right, kArea.bottom));
    const o7::SelectedObject selected(dc.get(), bitmap.get());
    ::ReleaseDC(nullptr, screen);
    for (const DrawRow& row : kRows) {
        SCOPED_TRACE(row.what);
        ::PatBlt(dc.get(), 0, 0, kArea.right, kArea.bottom, BLACKNESS);
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_COMBOBOX;
        item.CtlID = kId;
        item.itemID = row.item;
        item.itemState = row.state;
        item.hwndItem = m_list.getHwnd();
        item.hDC = dc.get();
        item.rcItem = kArea;
        item.itemData =
            row.item == kNone ? ~ULONG_PTR{} : reinterpret_cast<ULONG_PTR>(&m_records[row.item]);
        _UIWindowsMessage message;
        message.message = WM_DRAWITEM;
        message.lParam = reinterpret_cast<LPARAM>(&item);
        EXPECT_TRUE(m_combo.handleMessage(message));
        EXPECT_EQ(TRUE, message.result);
        EXPECT_EQ(::GetSysColor(row.background),
                  ::GetPixel(dc.get(), kArea.right - 2, kArea.bottom - 2));
        EXPECT_TRUE(shows(dc.get(), ::GetSysColor(row.text)));
        item.hwndItem = m_page.page();
        EXPECT_FALSE(m_combo.handleMessage(message)) << "somebody else's entry";
    }
}

TEST_F(UIComboBox, DumpsWhatIsChosenAndWhatIsGrey)
{
    fill({L"a4", L"FOLIO", L"LEGAL"});
    m_list.setSelection(0);
    m_combo.setEnable(false);
    EXPECT_EQ(L"combo 77 \"a4\" disabled grey \"FOLIO\", \"LEGAL\"\n", o7::test::dumpOf(m_combo));
}

} // namespace
