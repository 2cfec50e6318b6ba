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
#include "windowtext.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

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

TEST(UIControl, SizesAreDialogUnitsUnlessToldOtherwise)
{
    TestPage page;
    const ControlPtr control = makeText(page, true);
    control->setSize({20, 10});
    const RECT expected = page.pixels(0, 0, 20, 10);
    const RECT place = placeOf(page, *control);
    EXPECT_EQ(expected.right, place.right - place.left);
    EXPECT_EQ(expected.bottom, place.bottom - place.top);
}

// Its owner reads that; the control itself does nothing with it.
TEST(UIControl, RemembersThatItIsToBeEmptiedWhenDisabled)
{
    TestPage page;
    UIComboBoxControl combo(page.page(), kId, page.services(), page.font(), kLocation, kSize);
    IComboListControl& list = combo;
    EXPECT_FALSE(list.getClearOnDisable());
    list.setClearOnDisable(true);
    EXPECT_TRUE(static_cast<UIControl&>(combo).getClearOnDisable());
    list.setClearOnDisable(false);
    EXPECT_FALSE(list.getClearOnDisable());
}

TEST(UIButtonControl, AnAmpersandShowsAndIsNoMnemonic)
{
    TestPage page;
    UIButtonControl button(page.page(), kId, page.services(), page.font(), kLocation, kSize, false);
    IButtonControl& named = button;
    named.setButtonDisplayName(L"R&D && more");
    EXPECT_EQ(L"R&&D &&&& more", o7::windowText(named.getHwnd()));
    EXPECT_EQ(o7::windowText(named.getHwnd()), named.getButtonDisplayName());
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

/// A control that has no window, as there is no parent for it.
template <class Control, class... Arguments> Control orphan(UIServices& services, Arguments... rest)
{
    return Control(nullptr, 1, services, nullptr, {1, 2}, {3, 4}, rest...);
}

TEST(UIControl, WithoutAParentThereIsNoWindowAndNoHarm)
{
    UIServices services;
    auto check = orphan<UICheckBoxControl>(services, false);
    auto radio = orphan<UIRadioButtonControl>(services, 0U);
    auto edit = orphan<UIEditControl>(services, 0U, true, 5);
    auto slider = orphan<UISliderControl>(services, 0U, 1, 9);
    auto spin = orphan<UISpinControl>(services, 0U, true, 1, 9);
    auto button = orphan<UIButtonControl>(services, false);
    auto combo = orphan<UIComboBoxControl>(services);
    auto list = orphan<UIListBoxControl>(services, 0U, true);
    for (UIControl* control : {static_cast<UIControl*>(&check), static_cast<UIControl*>(&radio),
                               static_cast<UIControl*>(&edit), static_cast<UIControl*>(&slider),
                               static_cast<UIControl*>(&spin), static_cast<UIControl*>(&button),
                               static_cast<UIControl*>(&combo), static_cast<UIControl*>(&list)}) {
        EXPECT_EQ(nullptr, control->getHwnd());
        control->setShow(true);
        control->setEnable(false);
        control->move({1, 1}, false);
        EXPECT_FALSE(o7::test::dumpOf(*control).empty());
    }
    check.setCheck(BST_CHECKED);
    radio.setCheck(BST_CHECKED);
    radio.setText(L"text");
    EXPECT_EQ(BST_UNCHECKED, check.getCheck());
    EXPECT_EQ(BST_UNCHECKED, radio.getCheck());
    edit.setText(L"text");
    edit.selectAll();
    EXPECT_TRUE(edit.getText().IsEmpty());
    button.setButtonDisplayName(L"name");
    EXPECT_TRUE(button.getButtonDisplayName().IsEmpty());
    slider.setPosition(5);
    spin.setBuddy(nullptr);
    spin.setPosition(5);
    EXPECT_EQ(0, slider.getPosition());
    EXPECT_EQ(0, spin.getPosition());
    for (IComboListControl* entries :
         {static_cast<IComboListControl*>(&combo), static_cast<IComboListControl*>(&list)}) {
        EXPECT_EQ(0, entries->addItem(L"entry"));
        entries->setSelection(0);
        entries->setItemUnavailable(true, 0);
        entries->removeAllItems();
        EXPECT_EQ(0, entries->getCount());
        EXPECT_EQ(nullptr, entries->getItemData(0));
        EXPECT_EQ(-1, entries->findItemById(0));
    }
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

/// A group of three, of which none is checked, and a check box behind it.
class RadioGroup : public testing::Test
{
protected:
    RadioGroup()
    {
        for (int i = 0; i < 3; ++i) {
            const DWORD style = i == 0 ? WS_GROUP | WS_TABSTOP : 0;
            m_radios.push_back(std::make_unique<UIRadioButtonControl>(
                m_page.page(), kId + i, m_page.services(), m_page.font(), POINT{10, 10 + 12 * i},
                SIZE{60, 10}, style));
        }
        m_behind =
            std::make_unique<UICheckBoxControl>(m_page.page(), 99, m_page.services(), m_page.font(),
                                                POINT{10, 60}, SIZE{60, 10}, false);
        ::SetWindowLongPtrW(m_behind->getHwnd(), GWL_STYLE, WS_GROUP | 0x50010003);
        m_page.onMessage = [this](const _UIWindowsMessage& message) {
            if (message.message == WM_COMMAND && HIWORD(message.wParam) == BN_CLICKED) {
                check(LOWORD(message.wParam) - kId);
            }
        };
        ::SetForegroundWindow(::GetAncestor(m_page.page(), GA_ROOT));
    }
    void check(int chosen)
    {
        for (int i = 0; i < 3; ++i) {
            m_radios[static_cast<std::size_t>(i)]->setCheck(i == chosen ? BST_CHECKED
                                                                        : BST_UNCHECKED);
        }
    }
    HWND window(std::size_t index) const { return m_radios[index]->getHwnd(); }

    TestPage m_page;
    std::vector<std::unique_ptr<UIRadioButtonControl>> m_radios;
    std::unique_ptr<UICheckBoxControl> m_behind;
};

TEST_F(RadioGroup, ArrowKeysGoRoundInsideTheGroup)
{
    ::SetFocus(window(0));
    constexpr std::pair<WORD, std::size_t> kSteps[] = {
        {VK_DOWN, 1}, {VK_RIGHT, 2}, {VK_DOWN, 0}, {VK_UP, 2}, {VK_LEFT, 1}};
    for (const auto& [key, reached] : kSteps) {
        o7::test::sendKey(key);
        EXPECT_EQ(window(reached), ::GetFocus());
        EXPECT_EQ(BST_CHECKED, m_radios[reached]->getCheck());
        EXPECT_EQ(L"radio " + std::to_wstring(kId + static_cast<int>(reached)) + L" \"\" checked\n",
                  o7::test::dumpOf(*m_radios[reached]));
    }
}

TEST_F(RadioGroup, TheFocusAloneChoosesNothing)
{
    check(0);
    m_page.commands.clear();
    ::SetFocus(window(1));
    EXPECT_TRUE(m_page.commands.empty());
    EXPECT_EQ(BST_UNCHECKED, m_radios[1]->getCheck());
}

TEST_F(RadioGroup, TabStopsAtTheCheckedOneOnly)
{
    const auto stops = [&] {
        std::string found;
        for (std::size_t i = 0; i < 3; ++i) {
            found += (::GetWindowLongPtrW(window(i), GWL_STYLE) & WS_TABSTOP) != 0 ? 'T' : '-';
        }
        return found;
    };
    EXPECT_EQ("T--", stops()) << "as the style says while none is checked";
    constexpr std::pair<int, const char*> kChecks[] = {
        {1, "-T-"}, {2, "--T"}, {0, "T--"}, {2, "--T"}, {-1, "--T"}};
    for (const auto& [checked, expected] : kChecks) {
        check(checked);
        EXPECT_EQ(expected, stops()) << checked;
    }
    EXPECT_TRUE(::GetWindowLongPtrW(m_behind->getHwnd(), GWL_STYLE) & WS_TABSTOP);
}

TEST_F(RadioGroup, AMnemonicChecks)
{
    m_radios[1]->setText(L"&Landscape && more");
    EXPECT_EQ(L"&Landscape && more", o7::windowText(window(1)));
    ::SetFocus(m_behind->getHwnd());
    o7::test::sendKey('L', {VK_MENU});
    EXPECT_EQ(window(1), ::GetFocus());
    EXPECT_EQ(BST_CHECKED, m_radios[1]->getCheck());
}

TEST(UISpinControl, CountsFarAndTellsBeforeItSteps)
{
    TestPage page;
    std::vector<int> steps;
    page.onMessage = [&](const _UIWindowsMessage& message) {
        if (message.message == WM_NOTIFY &&
            reinterpret_cast<const NMHDR*>(message.lParam)->code == UDN_DELTAPOS) {
            steps.push_back(reinterpret_cast<const NMUPDOWN*>(message.lParam)->iDelta);
        }
    };
    UIEditControl edit(page.page(), 8, page.services(), page.font(), {10, 40}, {40, 14}, 0, true,
                       9);
    UISpinControl spin(page.page(), kId, page.services(), page.font(), {50, 40}, {10, 14}, 0, true,
                       0, 1'000'000);
    spin.setBuddy(edit.getHwnd());
    constexpr std::pair<int, int> kPositions[] = {
        {70'000, 70'000}, {2'000'000, 1'000'000}, {-1, 0}};
    for (const auto& [set, reached] : kPositions) {
        spin.setPosition(set);
        EXPECT_EQ(reached, spin.getPosition());
    }
    EXPECT_TRUE(edit.getText().IsEmpty()) << "what the buddy shows is its owner's";
    EXPECT_TRUE(steps.empty());
    ::SetForegroundWindow(::GetAncestor(page.page(), GA_ROOT));
    ::SetFocus(edit.getHwnd());
    o7::test::sendKey(VK_UP);
    EXPECT_EQ(std::vector<int>{1}, steps);
    EXPECT_EQ(1, spin.getPosition());
}

} // namespace
