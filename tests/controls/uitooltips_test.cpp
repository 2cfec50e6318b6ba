#include "uitooltips.h"

#include "cxstring.h"
#include "input.h"
#include "resourceguard.h"
#include "testpage.h"
#include "tipplacement.h"
#include "uitextcontrol.h"
#include "uiwindowsmessage.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>

namespace {

using o7::test::TestPage;

class ToolTips : public testing::Test
{
protected:
    int count()
    {
        return static_cast<int>(::SendMessageW(m_tips.getHwnd(), TTM_GETTOOLCOUNT, 0, 0));
    }

    std::wstring tipOf(HWND tool, UINT flags = TTF_IDISHWND)
    {
        std::array<wchar_t, 512> text{};
        TTTOOLINFOW info{};
        info.cbSize = TTTOOLINFOW_V2_SIZE;
        info.uFlags = flags;
        info.hwnd = m_page.page();
        info.uId = reinterpret_cast<UINT_PTR>(tool);
        info.lpszText = text.data();
        ::SendMessageW(m_tips.getHwnd(), TTM_GETTEXTW, text.size(),
                       reinterpret_cast<LPARAM>(&info));
        return text.data();
    }
    HWND tool() { return m_label.getHwnd(); }
    void pointAtTool()
    {
        RECT area{};
        ::GetWindowRect(tool(), &area);
        ::SetCursorPos(area.left + 3, area.top + 3);
    }
    static INT_PTR text(const wchar_t* value) { return reinterpret_cast<INT_PTR>(value); }

    TestPage m_page;
    UIToolTips m_tips{m_page.page()};
    UITextControl m_label{m_page.page(),  9,        m_page.services(),
                          m_page.font(),  {10, 10}, {60, 8},
                          SS_CENTERIMAGE, true,     nullptr};
};

TEST_F(ToolTips, AreCreatedAsTopmostPopupOfTheirOwner)
{
    const o7::test::WindowWatch watch;
    const UIToolTips tips(m_page.page());
    ASSERT_EQ(1U, watch.created.size());
    const auto& [className, creation] = watch.created.front();
    EXPECT_STREQ(TOOLTIPS_CLASSW, className.c_str());
    EXPECT_EQ(0x80000003U, static_cast<DWORD>(creation.style));
    EXPECT_EQ(8U, creation.dwExStyle);
    EXPECT_EQ(nullptr, creation.hMenu);
    EXPECT_EQ(800, ::SendMessageW(tips.getHwnd(), TTM_GETMAXTIPWIDTH, 0, 0));
}

TEST_F(ToolTips, GiveChangeAndTakeAway)
{
    EXPECT_NE(0, m_tips.AddToolAndTipMessage(tool(), nullptr, text(L"first")));
    EXPECT_EQ(1, count());
    EXPECT_EQ(L"first", tipOf(tool()));
    m_tips.UpdateTipMessage(tool(), nullptr, text(L"second"));
    EXPECT_EQ(L"second", tipOf(tool()));
    m_tips.DeleteToolFromToolTip(tool());
    EXPECT_EQ(0, count());
}

TEST_F(ToolTips, TrackingShowsTheTipBelowTheControlsTop)
{
    EXPECT_NE(0, m_tips.AddToolAndTrackingTipMessage(tool(), nullptr, text(L"look here")));
    EXPECT_TRUE(::IsWindowVisible(m_tips.getHwnd()));
    RECT tip{};
    RECT control{};
    ::GetWindowRect(m_tips.getHwnd(), &tip);
    ::GetWindowRect(tool(), &control);
    EXPECT_NEAR(control.left, tip.left, 1);
    EXPECT_NEAR(control.top + 16, tip.top, 1);
    m_tips.DeleteToolFromToolTip(tool());
    EXPECT_FALSE(::IsWindowVisible(m_tips.getHwnd()));
    EXPECT_EQ(0, m_tips.AddToolAndTrackingTipMessage(reinterpret_cast<HWND>(0x7ffffff0), nullptr,
                                                     text(L"nowhere")));
}

constexpr auto kStatic = UIToolTips::ControlType::StaticText;
constexpr auto kButton = UIToolTips::ControlType::Button;

/// Control, its label, the extra text, the tip (null: none); whether the static notices the mouse.
struct LabelRow
{
    UIToolTips::ControlType type;
    const wchar_t* label;
    const wchar_t* extra;
    const wchar_t* tip;
    bool noticesMouse;
};

constexpr LabelRow kLabels[] = {
    {kStatic, L"Size", nullptr, nullptr, false},
    {kStatic, L"Size", L"of the paper", L"of the paper", false},
    {kStatic, L"The &size of the paper", nullptr, L"The size of the paper", true},
    {kStatic, L"The size of the paper", L"(mm)", L"The size of the paper (mm)", true},
    {kButton, L"The size of the paper", nullptr, L"The size of the paper", false},
};

TEST_F(ToolTips, HoldTheWholeOfALabelThatIsCut)
{
    constexpr SIZE kArea{40, 12};
    for (const LabelRow& row : kLabels) {
        SCOPED_TRACE(CXString(row.label).ToUtf8());
        ::SetWindowLongPtrW(tool(), GWL_STYLE, WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE);
        m_tips.AddToolTipAndTruncatedLabel(row.type, tool(), text(row.extra), kArea, row.label,
                                           m_page.font());
        ASSERT_EQ(row.tip != nullptr ? 1 : 0, count());
        if (row.tip != nullptr) {
            EXPECT_EQ(row.tip, tipOf(tool()));
        }
        EXPECT_EQ(row.noticesMouse ? SS_NOTIFY : SS_CENTERIMAGE,
                  ::GetWindowLongPtrW(tool(), GWL_STYLE) & (SS_NOTIFY | SS_CENTERIMAGE));
        m_tips.DeleteToolFromToolTip(tool());
    }
}

TEST_F(ToolTips, FollowALabelThatChanges)
{
    constexpr SIZE kArea{40, 12};
    constexpr std::pair<const wchar_t*, const wchar_t*> kTexts[] = {
        {L"The size of the paper", L"The size of the paper"},
        {L"The type of the paper", L"The type of the paper"},
        {L"Size", nullptr}};
    for (const auto& [label, tip] : kTexts) {
        m_tips.AddToolTipAndTruncatedLabel(kStatic, tool(), 0, kArea, label, m_page.font());
        ASSERT_EQ(tip != nullptr ? 1 : 0, count());
        if (tip != nullptr) {
            EXPECT_EQ(tip, tipOf(tool()));
        }
    }
}

TEST_F(ToolTips, AreReadFromRightToLeftWhereThePageIs)
{
    for (const bool isMirrored : {false, true}) {
        ::SetWindowLongPtrW(m_page.page(), GWL_EXSTYLE, isMirrored ? WS_EX_LAYOUTRTL : 0);
        m_tips.AddToolTipAndTruncatedLabel(kStatic, tool(), 0, {10, 12}, L"label", m_page.font());
        TTTOOLINFOW info{};
        info.cbSize = TTTOOLINFOW_V2_SIZE;
        info.hwnd = m_page.page();
        info.uId = reinterpret_cast<UINT_PTR>(tool());
        info.uFlags = TTF_IDISHWND;
        ::SendMessageW(m_tips.getHwnd(), TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&info));
        EXPECT_EQ(isMirrored, (info.uFlags & TTF_RTLREADING) != 0);
    }
}

TEST(TipPlacement, IsBesideWithinTheWorkArea)
{
    struct Row
    {
        const char* what;
        RECT part;
        SIZE tip;
        bool isMirrored;
        POINT corner;
    };
    constexpr RECT kWork{0, 0, 1000, 700};
    constexpr Row kRows[] = {
        {"behind it", {100, 50, 300, 62}, {200, 20}, false, {302, 50}},
        {"before it, read from the right", {400, 50, 600, 62}, {200, 20}, true, {198, 50}},
        {"no room behind", {700, 50, 900, 62}, {200, 20}, false, {498, 50}},
        {"no room before, read from the right", {100, 50, 300, 62}, {200, 20}, true, {302, 50}},
        {"no room beside", {100, 50, 900, 62}, {200, 20}, false, {100, 64}},
        {"nor to its own right end", {300, 50, 900, 62}, {700, 20}, false, {300, 64}},
        {"nor below", {100, 685, 900, 697}, {200, 20}, false, {100, 663}},
        {"at the lower edge", {100, 690, 300, 702}, {200, 20}, false, {302, 680}},
        {"larger than the screen", {100, 50, 300, 62}, {1200, 20}, false, {0, 64}},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        const POINT corner = o7::placeBeside(row.part, row.tip, kWork, row.isMirrored);
        EXPECT_EQ(row.corner.x, corner.x);
        EXPECT_EQ(row.corner.y, corner.y);
    }
}

TEST_F(ToolTips, ExplainADisabledControlByItsAreaOfThePage)
{
    m_label.setEnable(false);
    const auto area = reinterpret_cast<HWND>(reinterpret_cast<UINT_PTR>(tool()) | 1);
    for (const wchar_t* reason : {L"needs the finisher", L"needs the tray"}) {
        m_tips.setAreaTip(tool(), reason);
        EXPECT_EQ(1, count());
        EXPECT_EQ(reason, tipOf(area, 0));
    }

    m_page.onMessage = [&](const _UIWindowsMessage& message) { m_tips.relayMouse(message); };
    m_tips.SetInitialTime(TTDT_INITIAL, 1);
    pointAtTool();
    EXPECT_TRUE(o7::test::pumpUntil([&] { return ::IsWindowVisible(m_tips.getHwnd()) != FALSE; }));
    EXPECT_NE(0, m_tips.ToolExists());

    m_tips.setAreaTip(tool(), {});
    EXPECT_EQ(0, count());
}

TEST_F(ToolTips, OfTwoThatArePlacedTheEndOfOneLeavesTheOther)
{
    UITextControl other(m_page.page(), 10, m_page.services(), m_page.font(), {10, 40}, {60, 8}, 0,
                        true, nullptr);
    RECT part{};
    ::GetWindowRect(tool(), &part);
    m_tips.showBeside(tool(), part, L"the first");
    ::GetWindowRect(other.getHwnd(), &part);
    m_tips.showBeside(other.getHwnd(), part, L"the second");
    EXPECT_EQ(1, count());
    m_tips.hidePlaced(tool());
    EXPECT_TRUE(::IsWindowVisible(m_tips.getHwnd()));
    m_tips.AddToolTipAndTruncatedLabel(UIToolTips::ControlType::Other, tool(), 0, {1000, 10},
                                       L"fits", m_page.font());
    m_tips.DeleteToolFromToolTip(tool());
    EXPECT_TRUE(::IsWindowVisible(m_tips.getHwnd()));
    m_tips.hidePlaced(other.getHwnd());
    EXPECT_FALSE(::IsWindowVisible(m_tips.getHwnd()));
    EXPECT_EQ(0, count());
}

TEST_F(ToolTips, KeepTheAmpersandsThatTheLabelShows)
{
    constexpr const wchar_t* kName = L"R&D department, second floor";
    for (const DWORD style : {DWORD{SS_NOPREFIX}, DWORD{0}}) {
        UITextControl label(m_page.page(), 10, m_page.services(), m_page.font(), {10, 40}, {30, 8},
                            style, true, nullptr);
        m_tips.AddToolTipAndTruncatedLabel(UIToolTips::ControlType::StaticText, label.getHwnd(), 0,
                                           label.getDimensionInPixels(), kName, m_page.font());
        EXPECT_EQ(style != 0 ? kName : L"RD department, second floor", tipOf(label.getHwnd()));
        m_tips.DeleteToolFromToolTip(label.getHwnd());
    }
}

TEST_F(ToolTips, WaitForTheMouse)
{
    ::SetCursorPos(0, 0);
    ::SetWindowLongPtrW(tool(), GWL_STYLE, WS_CHILD | WS_VISIBLE | SS_NOTIFY);
    m_page.onMessage = [&](const _UIWindowsMessage& message) { m_tips.relayMouse(message); };
    m_tips.SetInitialTime(TTDT_INITIAL, 1);
    for (const wchar_t* tip : {L"first", L"second"}) {
        m_tips.setTip(tool(), tip);
    }
    EXPECT_EQ(0, count()) << "nobody has pointed yet";
    pointAtTool();
    EXPECT_TRUE(o7::test::pumpUntil([&] { return ::IsWindowVisible(m_tips.getHwnd()) != FALSE; }));
    EXPECT_EQ(L"second", tipOf(tool()));
    m_tips.setTip(tool(), L"third");
    EXPECT_EQ(L"third", tipOf(tool()));
    m_tips.setTip(tool(), {});
    EXPECT_EQ(0, count());
}

TEST_F(ToolTips, LeaveNothingBehind)
{
    const auto cycle = [&] {
        UIToolTips tips(m_page.page());
        tips.AddToolAndTipMessage(tool(), nullptr, text(L"tip"));
        tips.DeleteToolFromToolTip(tool());
    };
    cycle();
    const o7::test::ResourceGuard guard;
    for (int i = 0; i < 200; ++i) {
        cycle();
    }
}

} // namespace
