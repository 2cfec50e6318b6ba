#include "input.h"
#include "messagerecorder.h"
#include "resourceguard.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>

using namespace o7::test;

namespace {

HWND makeChild(HWND parent, const wchar_t* windowClass, int top, INT_PTR id)
{
    return CreateWindowExW(0, windowClass, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, top, 200,
                           30, parent, reinterpret_cast<HMENU>(id), nullptr, nullptr);
}

std::wstring textOf(HWND window)
{
    std::array<wchar_t, 128> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

TEST(Input, TypesAndClicksAndWaits)
{
    HWND window = CreateWindowExW(0, L"#32770", L"input test", WS_POPUP | WS_VISIBLE, 100, 100, 300,
                                  200, nullptr, nullptr, nullptr, nullptr);
    HWND edit = makeChild(window, L"EDIT", 10, 1);
    HWND button = makeChild(window, L"BUTTON", 60, 2);
    SetForegroundWindow(window);
    SetFocus(edit);
    pumpUntilQuiet();
    typeText(L"Größe A4, 10 €");
    EXPECT_EQ(textOf(edit), L"Größe A4, 10 €");
    sendKey(VK_HOME, {VK_SHIFT});
    sendKey(VK_DELETE);
    EXPECT_EQ(textOf(edit), L"");
    EXPECT_GE(GetKeyState(VK_SHIFT), 0) << "the held key was not released";
    sendKey(VK_TAB);
    EXPECT_EQ(GetFocus(), button);
    sendKey(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(GetFocus(), edit);
    {
        const MessageRecorder recorder(window, {WM_COMMAND});
        sendClick(button);
        const ExpectedMessage table[] = {
            {WM_COMMAND, ExpectedMessage::Optional, MAKEWPARAM(1, EN_KILLFOCUS)},
            {WM_COMMAND, ExpectedMessage::Required, MAKEWPARAM(2, BN_CLICKED),
             reinterpret_cast<LPARAM>(button)}};
        EXPECT_EQ(recorder.compare(table), "");
    }
    PostMessageW(edit, WM_CHAR, L'x', 0);
    EXPECT_TRUE(pumpUntil([edit] { return textOf(edit) == L"x"; }));
    EXPECT_FALSE(pumpUntil([] { return false; }, 20));
    EXPECT_EQ(waitForWindow(L"no such window", 20), nullptr);
    DestroyWindow(window);
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
