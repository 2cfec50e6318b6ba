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
constexpr UINT third = WM_APP + 3;

class MessageRecorderTest : public ::testing::Test
{
protected:
    MessageRecorderTest()
        : window_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                  GetModuleHandleW(nullptr), nullptr))
    {
    }
    ~MessageRecorderTest() override { DestroyWindow(window_); }

    HWND window_;
};

TEST_F(MessageRecorderTest, ComparesWithATable)
{
    struct Case
    {
        const char* name;
        std::vector<UINT> sent;
        std::vector<ExpectedMessage> table;
        const char* fault; // start of the answer
    };
    const Case cases[] = {
        {"nothing at all", {}, {}, ""},
        {"in order", {first, second}, {{first}, {second}}, ""},
        {"wrong order",
         {second, first},
         {{first}, {second}},
         "expected 0x8001(any, any), came 0x8002"},
        {"one missing",
         {first},
         {{first}, {second}},
         "expected 0x8002(any, any), nothing more came"},
        {"one too many", {first, second}, {{first}}, "expected nothing more, came 0x8002"},
        {"optional there", {first, second, third}, {{first}, {second, Optional}, {third}}, ""},
        {"optional missing", {first, third}, {{first}, {second, Optional}, {third}}, ""},
        {"optional at the end", {first}, {{first}, {second, Optional}}, ""},
        {"parameters", {first}, {{first, Required, WPARAM{7}, LPARAM{8}}}, ""},
        {"other parameter", {first}, {{first, Required, WPARAM{6}}}, "expected 0x8001(0x6, any)"},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        const MessageRecorder recorder(window_);
        for (const UINT message : one.sent)
            SendMessageW(window_, message, 7, 8);
        const std::string answer = recorder.compare(one.table);
        EXPECT_EQ(answer.substr(0, *one.fault == '\0' ? std::string::npos : strlen(one.fault)),
                  one.fault);
    }
}

TEST_F(MessageRecorderTest, RecordsOnlyWhatIsWantedAndPassesEverythingOn)
{
    const MessageRecorder recorder(window_, {WM_SETTEXT});
    SetWindowTextW(window_, L"passed on");
    wchar_t text[32] = L"";
    GetWindowTextW(window_, text, 32);
    EXPECT_STREQ(text, L"passed on");
    constexpr ExpectedMessage table[] = {{WM_SETTEXT}};
    EXPECT_EQ(recorder.compare(table), "");
}

TEST_F(MessageRecorderTest, PutsTheProcedureBackAndOutlivesTheWindow)
{
    const auto procedure = GetWindowLongPtrW(window_, GWLP_WNDPROC);
    {
        const MessageRecorder recorder(window_);
        EXPECT_NE(GetWindowLongPtrW(window_, GWLP_WNDPROC), procedure);
    }
    EXPECT_EQ(GetWindowLongPtrW(window_, GWLP_WNDPROC), procedure);

    const MessageRecorder recorder(window_, {WM_DESTROY, WM_NCDESTROY});
    DestroyWindow(window_);
    constexpr ExpectedMessage table[] = {{WM_DESTROY}, {WM_NCDESTROY}};
    EXPECT_EQ(recorder.compare(table), "");
}

} // namespace
