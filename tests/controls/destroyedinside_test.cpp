// Controls that the page destroys while they tell it something: nothing of them is touched then.

#include "uicomboboxcontrol.h"
#include "uilistboxcontrol.h"
#include "uilistviewcontrol.h"
#include "uiradiobuttoncontrol.h"

#include "cxstring.h"
#include "input.h"
#include "itemrecord.h"
#include "testpage.h"
#include "uitooltips.h"
#include "uiwindowsmessage.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <new>
#include <utility>

namespace {

using o7::test::TestPage;

/// In pages of its own, which go with it: whoever touches it afterwards crashes.
template <class Control> class Guarded : public Control
{
public:
    using Control::Control;
    static void* operator new(std::size_t size)
    {
        void* memory = ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
        return memory != nullptr ? memory : throw std::bad_alloc();
    }
    static void operator delete(void* memory) { ::VirtualFree(memory, 0, MEM_RELEASE); }
};

class DestroyedInside : public testing::Test
{
protected:
    /// Destroys the control when the page is told this by it.
    template <class Control> void goOn(std::unique_ptr<Guarded<Control>>& control, int code)
    {
        m_page.onMessage = [&control, code](const _UIWindowsMessage& message) {
            if (message.message == WM_COMMAND && HIWORD(message.wParam) == code) {
                control.reset();
            }
        };
        ::SetForegroundWindow(::GetAncestor(m_page.page(), GA_ROOT));
    }
    template <class List> void fill(List& list)
    {
        for (std::size_t i = 0; i < m_records.size(); ++i) {
            m_records[i] = {static_cast<int>(i), i == 1};
            list.setItemData(list.addItem(L"entry"), &m_records[i]);
        }
        list.setSelection(0);
        ::SetFocus(list.UIControl::getHwnd());
    }

    TestPage m_page;
    UIToolTips m_tips{m_page.page()};
    std::array<ItemRecord, 4> m_records{};
};

TEST_F(DestroyedInside, AListByAKeyATypedTextOrTheWheel)
{
    const std::function<void(HWND)> inputs[] = {
        [](HWND list) { ::SendMessageW(list, WM_KEYDOWN, VK_DOWN, 0); },
        [](HWND list) { ::SendMessageW(list, WM_CHAR, L'e', 0); },
        [](HWND list) {
            ::SendMessageW(list, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-360)), 0);
        },
    };
    for (const auto& input : inputs) {
        for (const int code : {CBN_SELENDOK, CBN_SELCHANGE}) {
            auto list = std::make_unique<Guarded<UIComboBoxControl>>(
                m_page.page(), 5, m_page.services(), m_page.font(), POINT{10, 10}, SIZE{90, 14});
            list->setUnavailableReasons(&m_tips, [](int) { return CXString(L"reason"); });
            goOn(list, code);
            fill(*list);
            input(list->UIControl::getHwnd());
            EXPECT_EQ(nullptr, list) << code;
        }
    }
    for (const int key : {VK_DOWN, VK_END}) {
        auto list = std::make_unique<Guarded<UIListBoxControl>>(m_page.page(), 5, m_page.services(),
                                                                m_page.font(), POINT{10, 10},
                                                                SIZE{90, 60}, 0, true);
        list->setUnavailableReasons(&m_tips, [](int) { return CXString(L"reason"); });
        goOn(list, LBN_SELCHANGE);
        fill(*list);
        m_records.back().unavailable = key == VK_END;
        ::SendMessageW(list->UIControl::getHwnd(), WM_KEYDOWN, static_cast<WPARAM>(key), 0);
        EXPECT_EQ(nullptr, list);
    }
}

TEST_F(DestroyedInside, ARadioButtonByAClickOrAnArrowKey)
{
    for (const bool byKey : {false, true}) {
        UIRadioButtonControl first(m_page.page(), 4, m_page.services(), m_page.font(), {10, 10},
                                   {60, 10}, WS_GROUP | WS_TABSTOP);
        auto radio = std::make_unique<Guarded<UIRadioButtonControl>>(
            m_page.page(), 5, m_page.services(), m_page.font(), POINT{10, 22}, SIZE{60, 10}, 0U);
        goOn(radio, BN_CLICKED);
        ::SetFocus(first.getHwnd());
        if (byKey) {
            o7::test::sendKey(VK_DOWN);
        } else {
            o7::test::sendClick(radio->getHwnd());
        }
        EXPECT_EQ(nullptr, radio) << byKey;
    }
}

/// Destroys its list when it is told anything.
class Destroyer : public ListViewObserver
{
public:
    explicit Destroyer(std::unique_ptr<Guarded<UIListViewControl>>& list) : m_list(list) {}
    void listSelectionChanged() override { m_list.reset(); }
    void listRowChecked(int, bool) override { m_list.reset(); }
    bool listKeyPressed(unsigned) override
    {
        m_list.reset();
        return true;
    }

private:
    std::unique_ptr<Guarded<UIListViewControl>>& m_list;
};

TEST_F(DestroyedInside, AListViewByAKey)
{
    std::unique_ptr<Guarded<UIListViewControl>> list;
    Destroyer destroyer(list);
    m_page.onMessage = [&](const _UIWindowsMessage& message) {
        if (list) {
            list->handleMessage(message);
        }
    };
    for (const WORD key : {WORD{VK_SPACE}, WORD{VK_DELETE}}) {
        list = std::make_unique<Guarded<UIListViewControl>>(m_page.page(), 5, m_page.services(),
                                                            m_page.font(), POINT{10, 10},
                                                            SIZE{90, 60}, 0U, m_tips);
        list->setColumns({{L"one", 100}});
        list->setRows({{1, {L"a"}}, {2, {L"b"}}});
        list->showCheckBoxes(true);
        list->selectRows({1, 2});
        list->setObserver(&destroyer);
        ::SetForegroundWindow(::GetAncestor(m_page.page(), GA_ROOT));
        ::SetFocus(list->getHwnd());
        o7::test::sendKey(key);
        EXPECT_EQ(nullptr, list) << key;
    }
}

} // namespace
