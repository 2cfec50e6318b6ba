// Fields to type in and sliders.

#include "uieditcontrol.h"
#include "uislidercontrol.h"

#include "cxstring.h"
#include "input.h"
#include "testpage.h"
#include "uiwindowsmessage.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace {

using o7::test::TestPage;

constexpr int kId = 1234;
constexpr POINT kLocation{10, 20};
constexpr SIZE kSize{60, 14};

void putIntoClipboard(HWND owner, const std::wstring& text)
{
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    ASSERT_TRUE(::OpenClipboard(owner));
    ::EmptyClipboard();
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(::GlobalLock(memory), text.c_str(), size);
    ::GlobalUnlock(memory);
    ::SetClipboardData(CF_UNICODETEXT, memory);
    ::CloseClipboard();
}

TEST(UIEditControl, KeepsLongTextsButLimitsTyping)
{
    TestPage page;
    UIEditControl edit(page.page(), kId, page.services(), page.font(), kLocation, kSize,
                       ES_AUTOHSCROLL, true, 3);
    const std::wstring longText(400, L'x');
    edit.setText(CXString(std::wstring_view(longText)));
    EXPECT_EQ(longText, edit.getText().c_str());
    page.commands.clear();
    edit.setText(CXString(std::wstring_view(longText)));
    EXPECT_TRUE(page.commands.empty()) << "the text that stands there is no change";

    ::SetForegroundWindow(::GetAncestor(page.page(), GA_ROOT));
    ::SetFocus(edit.getHwnd());
    edit.selectAll();
    constexpr WORD kTyped[] = {'1', '2', '3', '4'};
    for (const WORD key : kTyped) {
        o7::test::sendKey(key);
    }
    EXPECT_EQ(L"123", edit.getText());
}

TEST(UIEditControl, TellsNothingOfASecret)
{
    TestPage page;
    UIEditControl edit(page.page(), kId, page.services(), page.font(), kLocation, kSize,
                       ES_PASSWORD, true, 11);
    EXPECT_EQ(L"edit 1234 \"\"\n", o7::test::dumpOf(edit));
    for (const wchar_t* secret : {L"1", L"271828"}) {
        edit.setText(secret);
        EXPECT_EQ(L"edit 1234 \"\u2022\u2022\u2022\u2022\"\n", o7::test::dumpOf(edit));
    }
}

// The system takes the square of the length, which for a book is minutes.
TEST(UIEditControl, ALongPasteIsCutBeforeTheSystemSeesIt)
{
    TestPage page;
    for (const DWORD style : {DWORD{ES_AUTOHSCROLL}, DWORD{ES_MULTILINE}}) {
        UIEditControl edit(page.page(), kId, page.services(), page.font(), kLocation, kSize, style,
                           true, 11);
        for (const auto& [length, kept] : {std::pair{12, 12}, {1000, 1000}, {200'000, 1000}}) {
            putIntoClipboard(page.page(), std::wstring(static_cast<std::size_t>(length), L'7'));
            edit.selectAll();
            const DWORD before = ::GetTickCount();
            ::SendMessageW(edit.getHwnd(), WM_PASTE, 0, 0);
            EXPECT_LT(::GetTickCount() - before, 1000U) << length;
            EXPECT_EQ(kept, edit.getText().GetLength());
        }
        EXPECT_EQ(11, ::SendMessageW(edit.getHwnd(), EM_GETLIMITTEXT, 0, 0)) << "for typing";
    }
}

TEST(UISliderControl, MakesOnlyAsManyTicksAsCanBeTold)
{
    TestPage page;
    UISliderControl slider(page.page(), kId, page.services(), page.font(), kLocation, kSize, 0, 0,
                           10);
    const auto ticks = [&] { return ::SendMessageW(slider.getHwnd(), TBM_GETNUMTICS, 0, 0); };
    EXPECT_EQ(11, ticks());
    constexpr int kMost = 50'000'000;
    for (const auto& [most, steps] : {std::pair{kMost, 1}, {kMost, 7}, {1000, 1}, {kMost, kMost}}) {
        slider.setRange(0, most);
        slider.setTickFrequency(steps);
        EXPECT_LE(ticks(), 1100) << most << " " << steps;
        EXPECT_EQ(most, slider.getMaximum());
    }
    slider.setRange(0, 10);
    slider.setTickFrequency(5);
    EXPECT_EQ(3, ticks());
}

TEST(UISliderControl, KeepsToItsRangeAndMovesSilently)
{
    TestPage page;
    std::vector<WPARAM> told;
    page.onMessage = [&](const _UIWindowsMessage& message) {
        if (message.message == WM_HSCROLL) {
            told.push_back(LOWORD(message.wParam));
        }
    };
    UISliderControl slider(page.page(), kId, page.services(), page.font(), kLocation, kSize, 0, -5,
                           5);
    slider.setSteps(1, 4);
    constexpr std::pair<int, int> kPositions[] = {{3, 3}, {99, 5}, {-99, -5}, {-1, -1}};
    for (const auto& [set, reached] : kPositions) {
        slider.setPosition(set);
        EXPECT_EQ(reached, slider.getPosition());
    }
    EXPECT_TRUE(told.empty());
    ::SetForegroundWindow(::GetAncestor(page.page(), GA_ROOT));
    ::SetFocus(slider.getHwnd());
    o7::test::sendKey(VK_RIGHT);
    EXPECT_EQ(0, slider.getPosition());
    o7::test::sendKey(VK_NEXT);
    EXPECT_EQ(4, slider.getPosition());
    EXPECT_FALSE(told.empty());
}

} // namespace
