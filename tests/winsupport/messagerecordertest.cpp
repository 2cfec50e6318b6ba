#include "messagerecorder.h"

#include <gtest/gtest.h>

using o7::test::MessageRecorder;

namespace {

using Messages = std::vector<o7::test::RecordedMessage>;

TEST(MessageRecorder, RecordsWhatIsWantedPassesEverythingOnAndEndsWithItsWindow)
{
    HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                  nullptr, nullptr);
    const auto procedure = GetWindowLongPtrW(window, GWLP_WNDPROC);
    {
        const MessageRecorder recorder(window, {WM_APP, WM_APP + 1});
        SendMessageW(window, WM_APP + 1, 7, 8);
        SetWindowTextW(window, L"passed on");
        SendMessageW(window, WM_APP, 1, 2);
        EXPECT_EQ(recorder.messages(), (Messages{{WM_APP + 1, 7, 8}, {WM_APP, 1, 2}}));
    }
    EXPECT_EQ(GetWindowTextLengthW(window), 9);
    EXPECT_EQ(GetWindowLongPtrW(window, GWLP_WNDPROC), procedure);

    const MessageRecorder recorder(window, {WM_DESTROY, WM_NCDESTROY});
    DestroyWindow(window);
    EXPECT_EQ(recorder.messages(), (Messages{{WM_DESTROY, 0, 0}, {WM_NCDESTROY, 0, 0}}));
}

} // namespace
