// Setting what a control shows already paints nothing, whatever the control and the setter.

#include "uibitmapbuttoncontrol.h"
#include "uibuttoncontrol.h"
#include "uicheckboxcontrol.h"
#include "uicomboboxcontrol.h"
#include "uieditcontrol.h"
#include "uigroupboxcontrol.h"
#include "uihyperlinktextcontrol.h"
#include "uilistboxcontrol.h"
#include "uiradiobuttoncontrol.h"
#include "uislidercontrol.h"
#include "uispincontrol.h"
#include "uitextcontrol.h"

#include "cxstring.h"
#include "input.h"
#include "itemrecord.h"
#include "messagerecorder.h"
#include "testpage.h"
#include "uiresourceids.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

using o7::test::TestPage;
using ControlPtr = std::unique_ptr<UIControl>;

template <class Control, class... Arguments> ControlPtr make(TestPage& page, Arguments... arguments)
{
    return std::make_unique<Control>(page.page(), 7, page.services(), page.font(), POINT{10, 20},
                                     SIZE{90, 30}, arguments...);
}

ControlPtr makeText(TestPage& page)
{
    static const o7::UniqueFont bold(
        ::CreateFontW(-11, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 0, nullptr));
    return make<UITextControl>(page, 0U, true, bold.get());
}
ControlPtr makeButton(TestPage& page)
{
    return make<UIButtonControl>(page, false);
}
ControlPtr makeCheck(TestPage& page)
{
    return make<UICheckBoxControl>(page, true);
}
ControlPtr makeRadio(TestPage& page)
{
    return make<UIRadioButtonControl>(page, DWORD{WS_GROUP});
}
ControlPtr makeGroup(TestPage& page)
{
    return make<UIGroupBoxControl>(page, CXString(L"Paper"));
}
ControlPtr makeEdit(TestPage& page)
{
    return make<UIEditControl>(page, 0U, true, 20);
}
template <class List> ControlPtr filled(ControlPtr control)
{
    static ItemRecord record;
    auto& list = static_cast<List&>(*control);
    for (const wchar_t* text : {L"first", L"second", L"third"}) {
        list.setItemData(list.addItem(text), &record);
    }
    return control;
}
ControlPtr makeCombo(TestPage& page)
{
    return filled<UIComboBoxControl>(make<UIComboBoxControl>(page));
}
ControlPtr makeList(TestPage& page)
{
    return filled<UIListBoxControl>(make<UIListBoxControl>(page, 0U, true));
}
ControlPtr makeSlider(TestPage& page)
{
    return make<UISliderControl>(page, 0U, 0, 10);
}
ControlPtr makeSpin(TestPage& page)
{
    return make<UISpinControl>(page, 0U, true, 0, 10);
}
ControlPtr makeSign(TestPage& page)
{
    return make<UIBitmapButtonControl>(page, INT_PTR{O7_BITMAP_ADD}, INT_PTR{0});
}
ControlPtr makeLink(TestPage& page)
{
    return make<UIHyperlinkTextControl>(page, DWORD{WS_TABSTOP});
}

using Maker = ControlPtr (*)(TestPage&);
using Setter = std::function<void(UIControl&)>;

constexpr Maker kMakers[] = {makeText,  makeButton, makeCheck,  makeRadio, makeGroup, makeEdit,
                             makeCombo, makeList,   makeSlider, makeSpin,  makeSign,  makeLink};

/// Has the control do its own operation.
template <class Control> Setter on(void (*operation)(Control&))
{
    return [operation](UIControl& control) { operation(static_cast<Control&>(control)); };
}

struct Row
{
    const char* what;
    Maker make; ///< null: each of them
    Setter set;
};

const Row kRows[] = {
    {"place", nullptr,
     [](UIControl& c) {
         c.setLocation({30, 40});
     }},
    {"size", nullptr,
     [](UIControl& c) {
         c.setSize({60, 40});
     }},
    {"greyed", nullptr, [](UIControl& c) { c.setEnable(false); }},
    {"text", makeText, on<UITextControl>([](auto& c) { c.setText(L"text"); })},
    {"bold", makeText, on<UITextControl>([](auto& c) { c.boldText(true); })},
    {"name", makeButton, on<UIButtonControl>([](auto& c) { c.setButtonDisplayName(L"R&D"); })},
    {"sign", makeSign,
     on<UIBitmapButtonControl>([](auto& c) { c.setBitmaps(O7_BITMAP_REMOVE, 0); })},
    {"link", makeLink, on<UIHyperlinkTextControl>([](auto& c) { c.setText(L"Help"); })},
    {"check", makeCheck, on<UICheckBoxControl>([](auto& c) { c.setCheck(BST_CHECKED); })},
    {"radio", makeRadio, on<UIRadioButtonControl>([](auto& c) { c.setCheck(BST_CHECKED); })},
    {"radio text", makeRadio, on<UIRadioButtonControl>([](auto& c) { c.setText(L"&Off"); })},
    {"caption", makeGroup, on<UIGroupBoxControl>([](auto& c) { c.setCaption(L"Pages"); })},
    {"edit", makeEdit, on<UIEditControl>([](auto& c) { c.setText(L"12"); })},
    {"combo choice", makeCombo, on<UIComboBoxControl>([](auto& c) { c.setSelection(1); })},
    {"list choice", makeList, on<UIListBoxControl>([](auto& c) { c.setSelection(1); })},
    {"grey in combo", makeCombo,
     on<UIComboBoxControl>([](auto& c) { c.setItemUnavailable(true, 1); })},
    {"grey in list", makeList,
     on<UIListBoxControl>([](auto& c) { c.setItemUnavailable(true, 1); })},
    {"no entries", makeList, on<UIListBoxControl>([](auto& c) { c.removeAllItems(); })},
    {"slider", makeSlider, on<UISliderControl>([](auto& c) { c.setPosition(7); })},
};

/// How often the control is painted when it is set, or gets a message that it answers by drawing
/// at once, as some controls do.
std::size_t paintsAt(const Setter& set, UIControl& control)
{
    o7::test::pumpUntilQuiet();
    const o7::test::MessageRecorder recorder(
        control.getHwnd(), {WM_PAINT, WM_ERASEBKGND, WM_WINDOWPOSCHANGED, WM_SETTEXT, WM_SETFONT,
                            WM_ENABLE, BM_SETCHECK, CB_SETCURSEL, LB_SETCURSEL});
    set(control);
    o7::test::pumpUntilQuiet();
    return recorder.messages().size();
}

void expectOnePaint(const Row& row, Maker maker)
{
    SCOPED_TRACE(row.what);
    TestPage page;
    const ControlPtr control = maker(page);
    SCOPED_TRACE(testing::Message() << "control " << o7::test::dumpOf(*control).c_str());
    EXPECT_LT(0U, paintsAt(row.set, *control)) << "a change has to be seen";
    EXPECT_EQ(0U, paintsAt(row.set, *control)) << "the same again has not";
}

TEST(Repaint, SettingWhatIsShownAlreadyPaintsNothing)
{
    for (const Row& row : kRows) {
        if (row.make != nullptr) {
            expectOnePaint(row, row.make);
            continue;
        }
        for (const Maker maker : kMakers) {
            expectOnePaint(row, maker);
        }
    }
}

/// What changes nothing to begin with.
TEST(Repaint, EmptyingWhatIsEmptyPaintsNothing)
{
    TestPage page;
    const ControlPtr text = makeText(page);
    EXPECT_EQ(0U, paintsAt(on<UITextControl>([](auto& c) { c.clearText(); }), *text));
    EXPECT_EQ(0U, paintsAt([](UIControl& c) { c.move({0, 0}); }, *text));
    EXPECT_EQ(0U, paintsAt([](UIControl& c) { c.setShow(true); }, *text));
    const ControlPtr combo = make<UIComboBoxControl>(page);
    EXPECT_EQ(0U, paintsAt(on<UIComboBoxControl>([](auto& c) { c.removeAllItems(); }), *combo));
    const ControlPtr spin = makeSpin(page);
    EXPECT_EQ(0U, paintsAt(on<UISpinControl>([](auto& c) { c.setPosition(0); }), *spin));
}

} // namespace
