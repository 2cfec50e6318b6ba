// Where a message box comes up: over the window that it belongs to, not in the middle of the
// screen.

#include "boxplacement.h"

#include "cxstring.h"
#include "testpage.h"
#include "uiservices.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using o7::test::TestPage;

RECT s_place{};

/// Notes where the box stands once it is shown, and closes it.
void CALLBACK lookAndClose(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/)
{
    HWND box = ::GetActiveWindow();
    if (::GetDlgItem(box, 0xFFFF) != nullptr && ::IsWindowVisible(box) != FALSE) {
        ::GetWindowRect(box, &s_place);
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    }
}

TEST(BoxPlacement, OverItsOwnerAndOnTheScreen)
{
    TestPage page;
    HWND owner = ::GetAncestor(page.page(), GA_ROOT);
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    constexpr SIZE kSize{300, 240};
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 30, &lookAndClose);
    const POINT places[] = {{work.left + 20, work.top + 40},
                            {work.right - kSize.cx - 20, work.bottom - kSize.cy - 30},
                            {work.left - kSize.cx + 30, work.bottom - 30}};
    for (const POINT& place : places) {
        ::SetWindowPos(owner, nullptr, place.x, place.y, kSize.cx, kSize.cy, SWP_NOZORDER);
        s_place = {};
        page.services().showMessage(owner, L"A short text.", L"Title", MB_OK);
        const LONG width = s_place.right - s_place.left;
        const LONG height = s_place.bottom - s_place.top;
        ASSERT_GT(width, 0);
        const auto expected = [](LONG middle, LONG length, LONG first, LONG last) {
            return std::max(first, std::min(middle - length / 2, last - length));
        };
        EXPECT_NEAR(expected(place.x + kSize.cx / 2, width, work.left, work.right), s_place.left,
                    1);
        EXPECT_NEAR(expected(place.y + kSize.cy / 2, height, work.top, work.bottom), s_place.top,
                    1);
    }
    ::KillTimer(nullptr, timer);
}

TEST(BoxPlacement, LeavesOtherWindowsAlone)
{
    TestPage page;
    TestPage other;
    const o7::BoxPlacement outer(nullptr);
    const o7::BoxPlacement placement(::GetAncestor(page.page(), GA_ROOT));
    RECT before{};
    RECT after{};
    HWND window = ::GetAncestor(other.page(), GA_ROOT);
    ::GetWindowRect(window, &before);
    ::SetActiveWindow(window);
    ::GetWindowRect(window, &after);
    EXPECT_TRUE(::EqualRect(&before, &after));
}

} // namespace
