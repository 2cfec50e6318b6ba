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

TEST(WindowText, IsShownAndSpokenWithoutItsMarks)
{
    struct Row
    {
        CXString (*change)(const CXString&);
        const wchar_t* text;
        const wchar_t* expected;
    };
    constexpr Row kRows[] = {
        {o7::withoutMnemonics, L"&Size", L"Size"},
        {o7::withoutMnemonics, L"Paper &size", L"Paper size"},
        {o7::withoutMnemonics, L"Black && white", L"Black & white"},
        {o7::withoutMnemonics, L"Black & white", L"Black & white"},
        {o7::withoutMnemonics, L"R&&&D", L"R&D"},
        {o7::withoutMnemonics, L"last&", L"last&"},
        {o7::withoutMnemonics, L"", L""},
        {o7::spokenName, L"Paper &size:", L"Paper size"},
        {o7::spokenName, L"\u7528\u7D19(&P):", L"\u7528\u7D19"},
        {o7::spokenName, L"\u7528\u7D19(&P)\uFF1A", L"\u7528\u7D19"},
        {o7::spokenName, L"Tray (lower):", L"Tray (lower)"},
        {o7::spokenName, L"(&P)", L"(P)"},
        {o7::spokenName, L":", L""},
        {o7::spokenName, L"", L""},
        {o7::oneLine, L"a\r\nb \"c\" \\", LR"(a\nb \"c\" \\)"},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(row.expected, row.change(row.text));
    }
}

} // namespace
