// What every control does: creation, place, state, text, its end.

#include "uibuttoncontrol.h"
#include "uicheckboxcontrol.h"
#include "uicomboboxcontrol.h"
#include "uieditcontrol.h"
#include "uigroupboxcontrol.h"
#include "uilistboxcontrol.h"
#include "uiradiobuttoncontrol.h"
#include "uislidercontrol.h"
#include "uispincontrol.h"
#include "uitextcontrol.h"

#include "cxstring.h"
#include "dialogconversion.h"
#include "input.h"
#include "resourceguard.h"
#include "testpage.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using o7::test::TestPage;
using ControlPtr = std::unique_ptr<UIControl>;

constexpr int kId = 1234;
constexpr POINT kLocation{10, 20};
constexpr SIZE kSize{90, 14};

ControlPtr makeText(TestPage& page, bool visible)
{
    return std::make_unique<UITextControl>(page.page(), kId, page.services(), page.font(),
                                           kLocation, kSize, SS_NOPREFIX, visible, nullptr);
}
ControlPtr makeCheck(TestPage& page, bool threeState)
{
    return std::make_unique<UICheckBoxControl>(page.page(), kId, page.services(), page.font(),
                                               kLocation, kSize, threeState);
}
ControlPtr makeGroup(TestPage& page, bool)
{
    return std::make_unique<UIGroupBoxControl>(page.page(), kId, page.services(), page.font(),
                                               kLocation, kSize, L"Paper");
}
ControlPtr makeCombo(TestPage& page, bool)
{
    return std::make_unique<UIComboBoxControl>(page.page(), kId, page.services(), page.font(),
                                               kLocation, kSize);
}

ControlPtr makeButton(TestPage& page, bool isDefault)
{
    return std::make_unique<UIButtonControl>(page.page(), kId, page.services(), page.font(),
                                             kLocation, kSize, isDefault);
}
ControlPtr makeRadio(TestPage& page, bool)
{
    return std::make_unique<UIRadioButtonControl>(page.page(), kId, page.services(), page.font(),
                                                  kLocation, kSize, WS_GROUP | WS_TABSTOP);
}
ControlPtr makeEdit(TestPage& page, bool bordered)
{
    return std::make_unique<UIEditControl>(page.page(), kId, page.services(), page.font(),
                                           kLocation, kSize, bordered ? ES_NUMBER : WS_CHILD,
                                           bordered, 5);
}
ControlPtr makeList(TestPage& page, bool bordered)
{
    return std::make_unique<UIListBoxControl>(page.page(), kId, page.services(), page.font(),
                                              kLocation, kSize,
                                              bordered ? LBS_NOINTEGRALHEIGHT : WS_CHILD, bordered);
}
ControlPtr makeSlider(TestPage& page, bool)
{
    return std::make_unique<UISliderControl>(page.page(), kId, page.services(), page.font(),
                                             kLocation, kSize, TBS_BOTH | TBS_VERT | TBS_TOOLTIPS,
                                             -10, 10);
}
ControlPtr makeSpin(TestPage& page, bool defaultStyle)
{
    return std::make_unique<UISpinControl>(
        page.page(), kId, page.services(), page.font(), kLocation, kSize,
        UDS_SETBUDDYINT | UDS_AUTOBUDDY | UDS_WRAP | WS_CHILD, defaultStyle, 1, 99999);
}

struct Kind
{
    const char* what;
    ControlPtr (*make)(TestPage&, bool);
    bool flag;
    const wchar_t* windowClass; ///< as the system spells it
    DWORD style;
    bool visible;
    const wchar_t* dumped; ///< after creation
};

constexpr Kind kKinds[] = {
    {"text", makeText, true, L"Static", 0x50000080, true, L"text 1234 \"\"\n"},
    {"hidden text", makeText, false, L"Static", 0x40000080, false, L"text 1234 \"\" hidden\n"},
    {"check box", makeCheck, false, L"Button", 0x50010003, true, L"check 1234 \"\" unchecked\n"},
    {"three-state", makeCheck, true, L"Button", 0x50010006, true, L"check 1234 \"\" unchecked\n"},
    {"group box", makeGroup, false, L"Button", 0x50000007, true, L"group 1234 \"Paper\"\n"},
    {"combo box", makeCombo, false, L"ComboBox", 0x50210213, true, L"combo 1234 \"\"\n"},
    {"button", makeButton, false, L"Button", 0x50010300, true, L"button 1234 \"\"\n"},
    {"default button", makeButton, true, L"Button", 0x50010301, true, L"button 1234 \"\"\n"},
    {"radio", makeRadio, false, L"Button", 0x50030004, true, L"radio 1234 \"\" unchecked\n"},
    {"plain edit", makeEdit, false, L"Edit", 0x50000000, true, L"edit 1234 \"\"\n"},
    {"edit", makeEdit, true, L"Edit", 0x50812040, true, L"edit 1234 \"\"\n"},
    {"plain list", makeList, false, L"ListBox", 0x50000000, true, L"list 1234 \"\"\n"},
    {"list", makeList, true, L"ListBox", 0x50A10151, true, L"list 1234 \"\"\n"},
    {"slider", makeSlider, false, L"msctls_trackbar32", 0x50010109, true,
     L"slider 1234 \"\" 0 of -10 to 10\n"},
    {"plain spin", makeSpin, false, L"msctls_updown32", 0x50000013, true,
     L"spin 1234 \"\" 1 of 1 to 99999\n"},
    {"spin", makeSpin, true, L"msctls_updown32", 0x508000A1, true,
     L"spin 1234 \"\" 1 of 1 to 99999\n"},
};

TEST(UIControl, CreatesItsWindowAsDescribedOnceAndAtItsFinalPlace)
{
    TestPage page;
    const RECT place = page.pixels(10, 20, 100, 34);
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.what);
        o7::test::WindowWatch watch;
        const ControlPtr control = kind.make(page, kind.flag);
        ASSERT_FALSE(watch.created.empty());
        const auto& [className, creation] = watch.created.front();
        EXPECT_STREQ(kind.windowClass, className.c_str());
        EXPECT_EQ(kind.style, static_cast<DWORD>(creation.style));
        EXPECT_EQ(0U, creation.dwExStyle);
        EXPECT_EQ(page.page(), creation.hwndParent);
        EXPECT_EQ(kId, static_cast<int>(reinterpret_cast<INT_PTR>(creation.hMenu)));
        const RECT created{creation.x, creation.y, creation.x + creation.cx,
                           creation.y + creation.cy};
        EXPECT_TRUE(::EqualRect(&place, &created));
        EXPECT_EQ(kind.visible, control->getIsVisable());
        if (className.rfind(L"msctls", 0) != 0) { // those keep no font
            EXPECT_EQ(page.font(), o7::test::fontOf(control->getHwnd()));
        }
        EXPECT_FALSE(control->handleMessage({}));
        EXPECT_EQ(kind.dumped, o7::test::dumpOf(*control));
    }
}

TEST(UIControl, GoesWithItsPageOrBeforeIt)
{
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.what);
        TestPage page;
        ControlPtr first = kind.make(page, kind.flag);
        const HWND window = first->getHwnd();
        first.reset();
        EXPECT_FALSE(::IsWindow(window));

        const ControlPtr second = kind.make(page, kind.flag);
        page.destroyWindows();
        second->setEnable(true); // on a window that is gone: no effect, no harm
    }
}

TEST(UIControl, LeavesAWindowAloneThatIsNotItsOwn)
{
    TestPage page;
    TestPage other;
    ControlPtr control = makeText(page, true);
    const HWND window = control->getHwnd();
    ::SetParent(window, other.page());
    control.reset();
    EXPECT_TRUE(::IsWindow(window));
}

TEST(UIControl, TwoHundredCyclesLeaveNothingBehind)
{
    TestPage page;
    const auto cycle = [&] {
        for (const Kind& kind : kKinds) {
            kind.make(page, kind.flag);
        }
    };
    for (int i = 0; i < 10; ++i) { // fills the system's own cache of device contexts
        cycle();
        o7::test::pumpMessages();
    }
    const o7::test::ResourceGuard guard;
    for (int i = 0; i < 200; ++i) {
        cycle();
    }
}

RECT placeOf(const TestPage& page, const UIControl& control)
{
    RECT rect{};
    ::GetWindowRect(control.getHwnd(), &rect);
    ::MapWindowPoints(nullptr, page.page(), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

struct Change
{
    void (UIControl::*apply)(POINT, bool);
    POINT to;
    bool inPixels;
    POINT moved; ///< in dialog units or pixels
};

constexpr Change kChanges[] = {{&UIControl::move, {-3, 5}, false, {-3, 5}},
                               {&UIControl::move, {3, -5}, false, {3, -5}},
                               {&UIControl::move, {-3, 5}, true, {-3, 5}},
                               {&UIControl::setLocation, {14, 12}, false, {4, -8}}};

TEST(UIControl, MovesAndResizesItsWindowAtOnce)
{
    TestPage page;
    const DialogConversion& conversion = page.services().getDialogConversion();
    for (const Change& change : kChanges) {
        SCOPED_TRACE(testing::Message() << change.to.x << ", " << change.to.y);
        const ControlPtr control = makeText(page, true);
        RECT expected = placeOf(page, *control);
        const SIZE moved{change.inPixels ? change.moved.x
                                         : ::MulDiv(change.moved.x, conversion.getBaseUnitX(), 4),
                         change.inPixels ? change.moved.y
                                         : ::MulDiv(change.moved.y, conversion.getBaseUnitY(), 8)};
        ::OffsetRect(&expected, moved.cx, moved.cy);
        ((*control).*change.apply)(change.to, change.inPixels);
        const RECT after = placeOf(page, *control);
        // One pixel for rounding: the ends of a rectangle are converted one by one.
        EXPECT_NEAR(expected.left, after.left, 1);
        EXPECT_NEAR(expected.top, after.top, 1);
        EXPECT_NEAR(expected.right, after.right, 1);
        EXPECT_NEAR(expected.bottom, after.bottom, 1);
        EXPECT_EQ(after.left, control->getLocationInPixels().x);
        control->setSize({50, 30}, true);
        EXPECT_EQ(after.left + 50, placeOf(page, *control).right);
        EXPECT_EQ(30, control->getDimensionInPixels().cy);
    }
    // There and back by the same distance.
    const ControlPtr control = makeText(page, true);
    const RECT before = placeOf(page, *control);
    control->move({-3, 5}, false);
    const RECT distance = page.pixels(0, 0, 3, 5);
    EXPECT_EQ(before.left - distance.right, placeOf(page, *control).left);
    EXPECT_EQ(before.top + distance.bottom, placeOf(page, *control).top);
    control->move({3, -5}, false);
    const RECT after = placeOf(page, *control);
    EXPECT_TRUE(::EqualRect(&before, &after));
}

TEST(UIControl, ShowsAndEnablesAtOnce)
{
    TestPage page;
    const ControlPtr control = makeCheck(page, false);
    for (const bool on : {false, true, true}) {
        control->setEnable(on);
        control->setShow(on);
        EXPECT_EQ(on, ::IsWindowEnabled(control->getHwnd()) != FALSE);
        EXPECT_EQ(on, ::IsWindowVisible(control->getHwnd()) != FALSE);
        EXPECT_EQ(on, control->getIsVisable());
    }
}

TEST(UIControl, WithoutAParentThereIsNoWindowAndNoHarm)
{
    UIServices services;
    UICheckBoxControl control(nullptr, 1, services, nullptr, {1, 2}, {3, 4}, false);
    EXPECT_EQ(nullptr, control.getHwnd());
    control.setShow(true);
    control.move({1, 1}, false);
    control.setCheck(BST_CHECKED);
    EXPECT_EQ(BST_UNCHECKED, control.getCheck());
}

TEST(UITextControl, ReadsAtMost259Characters)
{
    TestPage page;
    UITextControl control(page.page(), kId, page.services(), page.font(), kLocation, kSize, 0, true,
                          nullptr);
    ITextControl& text = control;
    const std::wstring longText(300, L'x');
    for (const std::size_t length : {0U, 1U, 258U, 259U, 260U, 300U}) {
        text.setText(CXString(std::wstring_view(longText).substr(0, length)));
        EXPECT_EQ(std::min<int>(static_cast<int>(length), 259), text.getText().GetLength());
    }
    text.clearText();
    EXPECT_TRUE(text.getText().IsEmpty());
}

TEST(UITextControl, SwitchesFonts)
{
    TestPage page;
    const o7::UniqueFont bold(
        ::CreateFontW(-11, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 0, nullptr));
    UITextControl text(page.page(), kId, page.services(), page.font(), kLocation, kSize, 0, true,
                       bold.get());
    for (const bool on : {true, false}) {
        text.boldText(on);
        EXPECT_EQ(on ? bold.get() : page.font(), o7::test::fontOf(text.getHwnd()));
    }
}

TEST(UICheckBoxControl, ShowsStatesSilently)
{
    TestPage page;
    UICheckBoxControl control(page.page(), kId, page.services(), page.font(), kLocation, kSize,
                              true);
    for (const int state : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED}) {
        control.setCheck(state);
        EXPECT_EQ(state, control.getCheck());
    }
    EXPECT_TRUE(page.commands.empty());
    ::SendMessageW(control.getHwnd(), BM_CLICK, 0, 0);
    EXPECT_EQ(BST_CHECKED, control.getCheck());
    EXPECT_EQ((std::vector<TestPage::Command>{{kId, BN_CLICKED}}), page.commands);
}

} // namespace
