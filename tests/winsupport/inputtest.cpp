#include "input.h"
#include "messagerecorder.h"
#include "resourceguard.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>

using namespace o7::test;

namespace {

HWND makeChild(HWND parent, const wchar_t* windowClass, const wchar_t* text, int top, int id)
{
    return CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, top, 200,
                           30, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                           GetModuleHandleW(nullptr), nullptr);
}

std::wstring textOf(HWND window)
{
    std::array<wchar_t, 128> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

class InputTest : public ::testing::Test
{
protected:
    InputTest()
        : window_(CreateWindowExW(0, L"#32770", L"input test", WS_POPUP | WS_VISIBLE, 100, 100, 300,
                                  200, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr)),
          edit_(makeChild(window_, L"EDIT", L"", 10, 1)),
          button_(makeChild(window_, L"BUTTON", L"press", 60, 2))
    {
        SetForegroundWindow(window_);
        SetFocus(edit_);
        pumpUntilQuiet();
    }
    ~InputTest() override { DestroyWindow(window_); }

    HWND window_;
    HWND edit_;
    HWND button_;
};

TEST_F(InputTest, TypesAnyCharacterIntoTheFocus)
{
    typeText(L"Größe A4, 10 €");
    EXPECT_EQ(textOf(edit_), L"Größe A4, 10 €");
    sendKey(VK_BACK);
    EXPECT_EQ(textOf(edit_), L"Größe A4, 10 ");
    sendKey(VK_HOME, {VK_SHIFT});
    sendKey(VK_DELETE);
    EXPECT_EQ(textOf(edit_), L"");
    EXPECT_GE(GetKeyState(VK_SHIFT), 0) << "the held key was not released";
}

TEST_F(InputTest, ClicksWhatIsThere)
{
    const MessageRecorder recorder(window_, {WM_COMMAND});
    sendClick(button_);
    const ExpectedMessage table[] = {
        {WM_COMMAND, ExpectedMessage::Optional, MAKEWPARAM(1, EN_KILLFOCUS)},
        {WM_COMMAND, ExpectedMessage::Required, MAKEWPARAM(2, BN_CLICKED),
         reinterpret_cast<LPARAM>(button_)}};
    EXPECT_EQ(recorder.compare(table), "");
    EXPECT_EQ(GetFocus(), button_);
}

TEST_F(InputTest, TabMovesTheFocus)
{
    sendKey(VK_TAB);
    EXPECT_EQ(GetFocus(), button_);
    sendKey(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(GetFocus(), edit_);
}

TEST_F(InputTest, WaitingEndsWithThePredicateOrTheTime)
{
    EXPECT_TRUE(pumpUntil([] { return true; }, 0));
    EXPECT_FALSE(pumpUntil([] { return false; }, 20));
    PostMessageW(edit_, WM_SETTEXT, 0, 0);
    PostMessageW(edit_, WM_CHAR, L'x', 0);
    EXPECT_TRUE(pumpUntil([this] { return textOf(edit_) == L"x"; }));
    EXPECT_EQ(waitForWindow(L"input test"), window_);
    EXPECT_EQ(waitForWindow(L"no such window", 20), nullptr);
}

TEST(Input, DrivesAModalDialogFromASecondThread)
{
    const auto answer = [] {
        std::thread person([] {
            if (waitForWindow(L"modal") != nullptr)
                sendKey(VK_ESCAPE);
        });
        const int button = MessageBoxW(nullptr, L"Go on?", L"modal", MB_OKCANCEL);
        person.join();
        return button;
    };
    EXPECT_EQ(answer(), IDCANCEL);
    const ResourceGuard guard;
    EXPECT_EQ(answer(), IDCANCEL);
}

} // namespace
