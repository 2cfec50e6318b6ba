#include "windowtext.h"

#include "messagerecorder.h"
#include "uihandles.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(WindowText, ReadsTextsOfAnyLengthAndSetsOnlyNewOnes)
{
    const o7::UniqueWindow window(::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9,
                                                    nullptr, nullptr, nullptr, nullptr));
    const o7::test::MessageRecorder recorder(window.get(), {WM_SETTEXT});
    std::size_t settings = 0;
    for (const std::size_t length : {1U, 258U, 259U, 260U, 3000U}) {
        const CXString text{std::wstring_view(std::wstring(length, L'x'))};
        EXPECT_TRUE(o7::setWindowTextIfDifferent(window.get(), text));
        EXPECT_EQ(text, o7::windowText(window.get()));
        EXPECT_FALSE(o7::setWindowTextIfDifferent(window.get(), text));
        EXPECT_EQ(++settings, recorder.messages().size());
    }
}

TEST(WindowText, ShowsWhatIsDisplayed)
{
    constexpr const wchar_t* kRows[][2] = {
        {L"&Size", L"Size"},
        {L"Paper &size", L"Paper size"},
        {L"Black && white", L"Black & white"},
        {L"Black & white", L"Black & white"},
        {L"R&&&D", L"R&D"},
        {L"last&", L"last&"},
        {L"", L""},
    };
    for (const auto& [marked, shown] : kRows) {
        EXPECT_EQ(shown, o7::withoutMnemonics(marked));
    }
    EXPECT_EQ(LR"(a\nb \"c\" \\)", o7::oneLine(L"a\r\nb \"c\" \\"));
}

TEST(WindowText, SaysALabelWithoutItsMarks)
{
    constexpr const wchar_t* kRows[][2] = {
        {L"Paper &size:", L"Paper size"},
        {L"\u7528\u7D19(&P):", L"\u7528\u7D19"},
        {L"\u7528\u7D19(&P)\uFF1A", L"\u7528\u7D19"},
        {L"Tray (lower):", L"Tray (lower)"},
        {L"(&P)", L"(P)"},
        {L":", L""},
        {L"", L""},
    };
    for (const auto& [label, spoken] : kRows) {
        EXPECT_EQ(spoken, o7::spokenName(label));
    }
}

} // namespace
