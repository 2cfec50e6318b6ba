#include "uicomboboxcontrol.h"

#include "cxstring.h"
#include "importpatch.h"
#include "itemrecord.h"
#include "messagerecorder.h"
#include "testpage.h"
#include "textmeasure.h"
#include "uitooltips.h"
#include "uiwindowsmessage.h"

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

TEST_F(UIComboBox, TakesNoOtherWindowForItsList)
{
    const HWND other = o7::test::makeStatic(m_page);
    const auto procedure = ::GetWindowLongPtrW(other, GWLP_WNDPROC);
    ::SendMessageW(m_list.getHwnd(), WM_CTLCOLORLISTBOX, 0, reinterpret_cast<LPARAM>(other));
    ::SendMessageW(m_list.getHwnd(), WM_CTLCOLORLISTBOX, 0, 0);
    EXPECT_EQ(procedure, ::GetWindowLongPtrW(other, GWLP_WNDPROC));
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(m_list.getHwnd(), &info));
    const auto before = ::GetWindowLongPtrW(info.hwndList, GWLP_WNDPROC);
    ::SendMessageW(m_list.getHwnd(), WM_CTLCOLORLISTBOX, 0,
                   reinterpret_cast<LPARAM>(info.hwndList));
    EXPECT_NE(before, ::GetWindowLongPtrW(info.hwndList, GWLP_WNDPROC));
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

TEST_F(UIComboBox, TheWheelPassesOverUnavailableEntries)
{
    fill({L"a", L"B", L"c", L"d"});
    m_list.setSelection(0);
    ::SetFocus(m_list.getHwnd());
    struct Turn
    {
        int by;
        WORD held;
        int selected;
    };
    constexpr Turn kTurns[] = {{-60, 0, 0},  {-60, 0, 2}, {-120, MK_CONTROL, 2},
                               {-240, 0, 3}, {120, 0, 2}, {120, 0, 0}};
    for (const Turn& turn : kTurns) {
        ::SendMessageW(m_list.getHwnd(), WM_MOUSEWHEEL,
                       MAKEWPARAM(turn.held, static_cast<WORD>(turn.by)), 0);
        EXPECT_EQ(turn.selected, m_list.getSelection(true)) << turn.by;
    }
}

// The page under the pointer scrolls; who chooses something goes to the list first.
TEST_F(UIComboBox, TheWheelOverAListWithoutTheFocusChangesNothing)
{
    fill({L"a", L"b", L"c"});
    m_list.setSelection(1);
    ::SetFocus(nullptr); // a page would hand it to its first control
    int handedOn = 0;
    m_page.onMessage = [&](const _UIWindowsMessage& message) {
        handedOn += message.message == WM_MOUSEWHEEL ? 1 : 0;
    };
    for (const int by : {-WHEEL_DELTA, WHEEL_DELTA}) {
        ::SendMessageW(m_list.getHwnd(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(by)), 0);
        EXPECT_EQ(1, m_list.getSelection(true));
    }
    EXPECT_TRUE(m_page.commands.empty());
    EXPECT_EQ(2, handedOn);
}

TEST_F(UIComboBox, DropsNoWiderThanTheScreen)
{
    fill({std::wstring(3000, L'w').c_str()});
    EXPECT_GE(droppedWidth(), ::GetSystemMetrics(SM_CXSCREEN) / 2);
    EXPECT_LE(droppedWidth(), ::GetSystemMetrics(SM_CXSCREEN));
}

TEST_F(UIComboBox, TakesItsTipAlongWhenItGoesBeforeThePage)
{
    UIToolTips tips(m_page.page());
    const auto tools = [&] { return ::SendMessageW(tips.getHwnd(), TTM_GETTOOLCOUNT, 0, 0); };
    {
        UIComboBoxControl list(m_page.page(), 5, m_page.services(), m_page.font(), {10, 40},
                               {20, 14});
        list.setUnavailableReasons(&tips, [](int) { return CXString(); });
        list.addItem(L"an entry much wider than its field");
        list.setSelection(0);
        const auto window = reinterpret_cast<WPARAM>(list.UIControl::getHwnd());
        ::SendMessageW(list.UIControl::getHwnd(), WM_SETCURSOR, window, 0);
        tips.relayMouse({UIMessageKind::TabPage, m_page.page(), WM_SETCURSOR, window, 0});
        EXPECT_EQ(1, tools());
    }
    EXPECT_EQ(0, tools());
}

int s_desktopRepaints = 0;
BOOL WINAPI countDesktop(HWND window, const RECT*, BOOL)
{
    s_desktopRepaints += window == nullptr ? 1 : 0;
    return TRUE;
}
HWND WINAPI createNothing(DWORD, LPCWSTR, LPCWSTR, DWORD, int, int, int, int, HWND, HMENU,
                          HINSTANCE, LPVOID)
{
    return nullptr;
}

TEST_F(UIComboBox, WithoutAWindowTheDesktopIsLeftAlone)
{
    const o7::test::ImportPatch watching("InvalidateRect", reinterpret_cast<void*>(&countDesktop));
    const o7::test::ImportPatch failing("CreateWindowExW", reinterpret_cast<void*>(&createNothing));
    ASSERT_TRUE(watching.isInPlace() && failing.isInPlace());
    {
        UIComboBoxControl list(m_page.page(), 5, m_page.services(), m_page.font(), {10, 40},
                               {60, 14});
        list.addItem(L"text");
    }
    EXPECT_EQ(0, s_desktopRepaints);
}

TEST_F(UIComboBox, DumpsWhatIsChosenAndWhatIsGrey)
{
    fill({L"a4", L"FOLIO", L"LEGAL"});
    m_list.setSelection(0);
    m_combo.setEnable(false);
    EXPECT_EQ(L"combo 77 \"a4\" disabled grey \"FOLIO\", \"LEGAL\"\n", o7::test::dumpOf(m_combo));
}

} // namespace
