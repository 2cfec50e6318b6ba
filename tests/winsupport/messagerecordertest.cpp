#include "messagerecorder.h"

#include <gtest/gtest.h>

#include <vector>

using o7::test::ExpectedMessage;
using o7::test::MessageRecorder;

namespace {

constexpr auto Optional = ExpectedMessage::Optional;
constexpr auto Required = ExpectedMessage::Required;
constexpr UINT first = WM_APP + 1;
constexpr UINT second = WM_APP + 2;

TEST(MessageRecorder, ComparesWithATableAndEndsWithItsWindow)
{
    struct Case
    {
        std::vector<UINT> sent;
        std::vector<ExpectedMessage> table;
        const char* fault; // start of the answer
    };
    const Case cases[] = {
        {{}, {}, ""},
        {{first, second}, {{first}, {second}}, ""},
        {{second, first}, {{first}, {second}}, "expected 0x8001(any, any), came 0x8002"},
        {{first}, {{first}, {second}}, "expected 0x8002(any, any), nothing more came"},
        {{first, second}, {{first}}, "expected nothing more, came 0x8002"},
        {{first, second}, {{first, Optional}, {second}}, ""},
        {{second}, {{first, Optional}, {second}}, ""},
        {{first}, {{first}, {second, Optional}}, ""},
        {{first}, {{first, Required, WPARAM{7}, LPARAM{8}}}, ""},
        {{first}, {{first, Required, WPARAM{6}}}, "expected 0x8001(0x6, any)"},
    };
    HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                  nullptr, nullptr);
    const auto procedure = GetWindowLongPtrW(window, GWLP_WNDPROC);
    for (const Case& one : cases) {
        const MessageRecorder recorder(window, {first, second});
        SetWindowTextW(window, L"passed on");
        for (const UINT message : one.sent)
            SendMessageW(window, message, 7, 8);
        const std::string answer = recorder.compare(one.table);
        EXPECT_EQ(answer.empty(), *one.fault == '\0') << answer;
        EXPECT_EQ(answer.find(one.fault), 0U) << answer;
    }
    EXPECT_EQ(GetWindowTextLengthW(window), 9);
    EXPECT_EQ(GetWindowLongPtrW(window, GWLP_WNDPROC), procedure);

    const MessageRecorder recorder(window, {WM_DESTROY, WM_NCDESTROY});
    DestroyWindow(window);
    constexpr ExpectedMessage table[] = {{WM_DESTROY}, {WM_NCDESTROY}};
    EXPECT_EQ(recorder.compare(table), "");
}

} // namespace
