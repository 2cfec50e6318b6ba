#include "orvikexception.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include <windows.h>

namespace {

constexpr const wchar_t* kTitle = L"o7guiQK test of the error box";

struct Seen
{
    int boxes = 0;
    HWND owner = nullptr;
};
Seen g_seen;

// Runs inside the box's own message loop: looks at the box, lets a second failure happen, and ends
// it. Asks again as long as the box is not there.
void CALLBACK lookAtBox(HWND, UINT, UINT_PTR timer, DWORD)
{
    HWND box = FindWindowW(L"#32770", kTitle);
    if (box == nullptr) {
        return;
    }
    KillTimer(nullptr, timer);
    ++g_seen.boxes;
    g_seen.owner = GetWindow(box, GW_OWNER);
    OrvikException::DisplayExceptionMessage(std::runtime_error("second"), L"p", kTitle);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

TEST(ExceptionBox, IsOwnedByTheActiveWindowAndStandsAlone)
{
    HWND owner = CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                 200, 100, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(owner, nullptr);
    SetActiveWindow(owner);
    ASSERT_NE(SetTimer(nullptr, 0, 20, lookAtBox), 0U);
    OrvikException::DisplayExceptionMessage(std::runtime_error("first"), L"p", kTitle);
    EXPECT_EQ(g_seen.boxes, 1);
    EXPECT_EQ(g_seen.owner, owner);
    EXPECT_TRUE(IsWindowEnabled(owner));
    DestroyWindow(owner);
}

} // namespace
