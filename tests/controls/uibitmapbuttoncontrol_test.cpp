// The bitmap button: what its procedure does with each message, what it looks like in each state,
// and that it paints no more than it has to.

#include "uibitmapbuttoncontrol.h"

#include "cxstring.h"
#include "importpatch.h"
#include "input.h"
#include "messagerecorder.h"
#include "parentbackground.h"
#include "pixels.h"
#include "testpage.h"
#include "uiresourceids.h"

#include <gtest/gtest.h>
#include <uxtheme.h>
#include <vssym32.h>

#include <memory>
#include <optional>

namespace {

using o7::test::Canvas;
using o7::test::TestPage;

constexpr int kId = 77;
constexpr COLORREF kSign = RGB(24, 96, 168);
constexpr COLORREF kDisabledSign = RGB(150, 150, 150);

bool s_themed = true;
bool isThemed() noexcept
{
    return s_themed;
}
HWND WINAPI noActiveWindow()
{
    return nullptr;
}

/// Records what reaches the window class's own procedure, below whatever a control puts before it:
/// starts with the next window that this thread creates.
class BelowRecorder
{
public:
    BelowRecorder()
        : m_hook(::SetWindowsHookExW(WH_CBT, &BelowRecorder::hook, nullptr, ::GetCurrentThreadId()))
    {
        s_next = this;
    }
    ~BelowRecorder() { ::UnhookWindowsHookEx(m_hook); }
    BelowRecorder(const BelowRecorder&) = delete;
    BelowRecorder& operator=(const BelowRecorder&) = delete;

    std::optional<o7::test::MessageRecorder> recorder;

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND && s_next != nullptr) {
            s_next->recorder.emplace(reinterpret_cast<HWND>(wParam));
            s_next = nullptr;
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static inline BelowRecorder* s_next = nullptr;
    HHOOK m_hook;
};

class BitmapButton : public testing::Test
{
protected:
    BitmapButton()
    {
        s_themed = true;
        ::SetCursorPos(0, 0); // away from the button
        m_page.onMessage = [this](const _UIWindowsMessage& message) {
            if (message.message == WM_DRAWITEM && m_button) {
                ++m_drawn;
                m_button->handleMessage(message);
            }
        };
    }

    void make(int normal = 0, int disabled = 0)
    {
        m_button = std::make_unique<UIBitmapButtonControl>(m_page.page(), kId, m_page.services(),
                                                           m_page.font(), POINT{10, 10},
                                                           SIZE{20, 20}, normal, disabled);
        settle();
    }
    HWND window() { return m_button->UIControl::getHwnd(); }
    void settle()
    {
        o7::test::pumpUntilQuiet();
        m_drawn = 0;
    }
    void setThemed(bool themed)
    {
        s_themed = themed;
        ::SendMessageW(window(), WM_THEMECHANGED, 0, 0);
        settle();
    }
    bool needsPaint() { return ::GetUpdateRect(window(), nullptr, FALSE) != FALSE; }
    void setHot(bool hot)
    {
        ::SendMessageW(window(), hot ? WM_MOUSEMOVE : WM_MOUSELEAVE, 0, MAKELPARAM(3, 3));
        ::ValidateRect(window(), nullptr);
    }
    Canvas look(UINT state)
    {
        const SIZE size = m_button->UIControl::getDimensionInPixels();
        Canvas canvas(size.cx, size.cy, RGB(255, 0, 255));
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.CtlID = kId;
        item.hwndItem = window();
        item.itemState = state;
        item.hDC = canvas.dc();
        item.rcItem = canvas.area();
        m_button->Draw(&item);
        return canvas;
    }

    o7::test::ImportPatch m_themePatch{"_ZN15OperatingSystem16IsUiThemeEnabledEv",
                                       reinterpret_cast<void*>(&isThemed)};
    TestPage m_page;
    std::unique_ptr<UIBitmapButtonControl> m_button;
    int m_drawn = 0;
};

struct Row
{
    const char* what;
    UINT message;
    bool themed;
    bool active; ///< whether a window of the thread is active
    bool hotBefore;
    bool hotAfter;
    bool repaints;
    bool passedOn;
};

constexpr Row kRows[] = {
    // what                  message            themed active hot    after  paints passed on
    {"focus goes, hot", WM_KILLFOCUS, true, true, true, false, true, true},
    {"focus goes, cold", WM_KILLFOCUS, true, true, false, false, true, true},
    {"enabled", WM_ENABLE, true, true, false, false, true, true},
    {"pointer leaves", WM_MOUSELEAVE, true, true, true, false, true, true},
    {"pointer comes", WM_MOUSEMOVE, true, true, false, true, true, false},
    {"pointer stays", WM_MOUSEMOVE, true, true, true, true, false, true},
    {"pointer, none active, hot", WM_MOUSEMOVE, true, false, true, false, true, false},
    {"pointer, none active, cold", WM_MOUSEMOVE, true, false, false, false, false, true},
    {"pointer, classic", WM_MOUSEMOVE, false, true, false, false, false, true},
    {"theme changes", WM_THEMECHANGED, true, true, false, false, true, true},
    {"erasing", WM_ERASEBKGND, true, true, false, false, false, false},
};

TEST_F(BitmapButton, AnswersEachMessageAndPassesItOn)
{
    ASSERT_TRUE(m_themePatch.isInPlace());
    BelowRecorder below;
    make();
    ASSERT_TRUE(below.recorder);
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        setThemed(row.themed);
        setHot(row.hotBefore);
        below.recorder->clear();
        {
            std::optional<o7::test::ImportPatch> inactive;
            if (!row.active) {
                inactive.emplace("GetActiveWindow", reinterpret_cast<void*>(&noActiveWindow));
                ASSERT_TRUE(inactive->isInPlace());
            }
            ::SendMessageW(window(), row.message, row.message == WM_ENABLE ? TRUE : 0,
                           MAKELPARAM(3, 3));
        }
        // The system paints an enabled button at once.
        EXPECT_EQ(row.repaints, needsPaint() || m_drawn > 0);
        const auto& passed = below.recorder->messages();
        const bool isPassedOn = std::any_of(passed.begin(), passed.end(), [&](const auto& message) {
            return message.message == row.message;
        });
        EXPECT_EQ(row.passedOn, isPassedOn);
        if (row.themed) {
            const Canvas now = look(0);
            setHot(row.hotAfter);
            EXPECT_EQ(0, now.difference(look(0)));
        }
        setHot(false);
        settle();
    }
}

TEST_F(BitmapButton, IsAStopOfTab)
{
    TestPage page;
    const UIBitmapButtonControl button(page.page(), kId, page.services(), page.font(), {0, 0},
                                       {20, 20}, 0, 0);
    EXPECT_EQ(0x5001004B, ::GetWindowLongPtrW(button.UIControl::getHwnd(), GWL_STYLE));
    EXPECT_EQ(button.UIControl::getHwnd(), ::GetNextDlgTabItem(page.page(), nullptr, FALSE));
}

TEST_F(BitmapButton, ASecondClickOfADoubleClickPressesToo)
{
    make();
    o7::test::sendClick(window());
    o7::test::sendClick(window());
    o7::test::pumpUntilQuiet();
    int clicks = 0;
    for (const auto& command : m_page.commands) {
        clicks += command == TestPage::Command{kId, BN_CLICKED} ? 1 : 0;
    }
    EXPECT_EQ(2, clicks);

    const o7::test::MessageRecorder recorder(window(), {WM_LBUTTONDOWN});
    ::SendMessageW(window(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 6));
    o7::test::pumpMessages();
    ASSERT_EQ(1U, recorder.messages().size());
    EXPECT_EQ((o7::test::RecordedMessage{WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6)}),
              recorder.messages().front());
}

struct Look
{
    UINT item;
    bool hot;
    int state;
};

constexpr Look kLooks[] = {
    {0, false, PBS_NORMAL},
    {0, true, PBS_HOT},
    {ODS_SELECTED, false, PBS_PRESSED},
    {ODS_SELECTED, true, PBS_HOT},
    {ODS_DISABLED, false, PBS_DISABLED},
    {ODS_DISABLED | ODS_SELECTED, false, PBS_PRESSED},
    {ODS_FOCUS, false, PBS_DEFAULTED},
    {ODS_FOCUS, true, PBS_HOT},
    {ODS_FOCUS | ODS_SELECTED, false, PBS_DEFAULTED},
    {ODS_FOCUS | ODS_DISABLED, false, PBS_DEFAULTED},
};

TEST_F(BitmapButton, LooksAsTheThemeHasIt)
{
    if (::IsThemeActive() == FALSE) {
        GTEST_SKIP() << "this system shows no theme";
    }
    make();
    setThemed(true);
    const HTHEME theme = ::OpenThemeData(window(), L"BUTTON");
    for (const Look& row : kLooks) {
        SCOPED_TRACE(testing::Message() << row.item << (row.hot ? " hot" : ""));
        setHot(row.hot);
        const Canvas shown = look(row.item);
        Canvas expected(shown.area().right, shown.area().bottom, RGB(0, 0, 0));
        o7::drawParentBackground(window(), expected.dc());
        const RECT area = expected.area();
        ::DrawThemeBackground(theme, expected.dc(), BP_PUSHBUTTON, row.state, &area, nullptr);
        if ((row.item & ODS_FOCUS) != 0) {
            const RECT focus{3, 3, area.right - 3, area.bottom - 3};
            ::DrawFocusRect(expected.dc(), &focus);
        }
        EXPECT_EQ(0, shown.difference(expected));
    }
    ::CloseThemeData(theme);
}

TEST_F(BitmapButton, ClassicFacesFollowTheSystemsColours)
{
    make();
    setThemed(false);
    const int element = COLOR_3DFACE;
    const COLORREF former = ::GetSysColor(element);
    for (const COLORREF face : {RGB(10, 20, 30), former}) {
        ::SetSysColors(1, &element, &face);
        const Canvas raised = look(0);
        const SIZE size{raised.area().right, raised.area().bottom};
        EXPECT_EQ(face, raised.at(size.cx / 2, size.cy / 2));
        EXPECT_EQ(::GetSysColor(COLOR_3DHILIGHT), raised.at(0, 0));
        EXPECT_EQ(::GetSysColor(COLOR_3DDKSHADOW), raised.at(size.cx - 1, size.cy - 1));
        EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), raised.at(size.cx - 2, size.cy - 2));
        EXPECT_EQ(::GetSysColor(COLOR_WINDOWFRAME), look(ODS_FOCUS).at(0, 0));
        EXPECT_EQ(::GetSysColor(COLOR_3DHILIGHT), look(ODS_FOCUS).at(1, 1));
        EXPECT_EQ(::GetSysColor(COLOR_WINDOWFRAME), look(ODS_SELECTED).at(0, 0));
        EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), look(ODS_SELECTED).at(1, 1));
        const Canvas disabled = look(ODS_DISABLED);
        Canvas edge(size.cx, size.cy, face);
        RECT area = edge.area();
        ::DrawEdge(edge.dc(), &area, EDGE_RAISED, BF_RECT);
        EXPECT_EQ(0, disabled.difference(edge));
    }
}

TEST_F(BitmapButton, DrawsItsSignScaledAndOnePixelLowerWhenPressed)
{
    make(O7_BITMAP_REMOVE, O7_BITMAP_REMOVE_DISABLED);
    setThemed(false);
    const Canvas normal = look(0);
    const Canvas pressed = look(ODS_SELECTED);
    const SIZE size{normal.area().right, normal.area().bottom};
    const SIZE sign = m_button->getTextAreaInPixels();
    const RECT margin = m_page.pixels(0, 0, 4, 4);
    EXPECT_EQ(size.cx - margin.right, sign.cx);
    EXPECT_EQ(size.cy - margin.bottom, sign.cy);
    EXPECT_EQ(kSign, normal.at(size.cx / 2, size.cy / 2));
    EXPECT_EQ(kDisabledSign, look(ODS_DISABLED).at(size.cx / 2, size.cy / 2));
    for (int y = (size.cy - sign.cy) / 2; y < (size.cy + sign.cy) / 2; ++y) {
        for (int x = (size.cx - sign.cx) / 2; x < (size.cx + sign.cx) / 2; ++x) {
            ASSERT_EQ(normal.at(x, y), pressed.at(x, y + 1)) << x << ", " << y;
            ASSERT_NE(RGB(0, 128, 0), normal.at(x, y)) << x << ", " << y;
        }
    }
}

TEST_F(BitmapButton, PaintsOnceForAChangeAndNotAtAllWithoutOne)
{
    make(O7_BITMAP_ADD, O7_BITMAP_ADD_DISABLED);
    const auto paintsAfter = [this](const auto& change) {
        settle();
        change();
        o7::test::pumpMessages();
        return m_drawn;
    };
    const auto point = [this](int x) {
        ::SendMessageW(window(), WM_MOUSEMOVE, 0, MAKELPARAM(x, 3));
    };
    EXPECT_EQ(0, paintsAfter([&] { m_button->setBitmaps(O7_BITMAP_ADD, O7_BITMAP_ADD_DISABLED); }));
    EXPECT_EQ(1, paintsAfter([&] { m_button->setBitmaps(0, 9999); })) << "none, and a missing one";
    EXPECT_EQ(1, paintsAfter([&] { m_button->UIControl::setEnable(false); }));
    EXPECT_EQ(1, paintsAfter([&] { m_button->UIControl::setEnable(true); }));
    EXPECT_EQ(1, paintsAfter([&] { point(3); }));
    EXPECT_EQ(0, paintsAfter([&] { point(4); }));
}

TEST_F(BitmapButton, RealPointerMakesItHotAndCold)
{
    make();
    const Canvas cold = look(0);
    RECT place{};
    ::GetWindowRect(window(), &place);
    ::SetCursorPos(place.left + 5, place.top + 5);
    EXPECT_TRUE(o7::test::pumpUntil([&] { return look(0).difference(cold) != 0; }));
    ::SetCursorPos(0, 0);
    EXPECT_TRUE(o7::test::pumpUntil([&] { return look(0).difference(cold) == 0; }));
}

} // namespace
