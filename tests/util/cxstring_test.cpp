#include "cxstring.h"
#include "cxstringprinter.h"

#include <gtest/gtest.h>

#include <thread>
#include <utility>
#include <vector>

namespace {

TEST(CXString, CopiesShareOneBufferUntilOneIsWritten)
{
    const CXString first(L"tray 1");
    CXString second(first);
    EXPECT_EQ(first.c_str(), second.c_str());
    second += L'!';
    EXPECT_EQ(first, L"tray 1");
    EXPECT_EQ(second, L"tray 1!");

    CXString third = first;
    third.GetBuffer(3)[0] = L'X';
    third.ReleaseBuffer();
    EXPECT_EQ(first, L"tray 1");
    EXPECT_EQ(third, L"Xray 1");
}

TEST(CXString, BuildsFromEveryKindOfTextAndFromNone)
{
    EXPECT_TRUE(CXString(static_cast<const wchar_t*>(nullptr)).IsEmpty());
    EXPECT_TRUE(CXString(static_cast<const char*>(nullptr)).IsEmpty());
    EXPECT_TRUE(CXString(L"abc", -1).IsEmpty());
    EXPECT_EQ(CXString(L"abc", 2), L"ab");
    EXPECT_EQ(CXString("Gr\xC3\xB6\xC3\x9F"), L"Gr\u00F6\u00DF");
    EXPECT_EQ(CXString(L"a\0b", 3).GetLength(), 3);
    EXPECT_STREQ(CXString().c_str(), L"");
    EXPECT_EQ(CXString().c_str(), CXString(L"").c_str());
}

TEST(CXString, AppendsItselfAndPartsOfItself)
{
    CXString text(L"ab");
    text += text;
    EXPECT_EQ(text, L"abab");
    text += text.c_str() + 1;
    EXPECT_EQ(text, L"ababbab");
    for (int i = 0; i < 12; ++i) {
        text += text.View();
    }
    EXPECT_EQ(text.GetLength(), 7 << 12);
    text = text.c_str() + text.GetLength() - 3;
    EXPECT_EQ(text, L"bab");
}

TEST(CXString, ComparesByCharacterValueAndWithoutCase)
{
    EXPECT_LT(CXString(L"Zebra"), CXString(L"apple"));
    EXPECT_LT(CXString(L"a"), CXString(L"ab"));
    EXPECT_GT(CXString(L"\uFFFD").Compare(L"z"), 0);
    EXPECT_EQ(CXString(L"abc").Compare(static_cast<const wchar_t*>(nullptr)), 1);
    EXPECT_EQ(CXString(L"GR\u00D6SSE").CompareNoCase(L"gr\u00F6sse"), 0);
    EXPECT_EQ(CXString(L"\u0416").CompareNoCase(L"\u0436"), 0);
    EXPECT_LT(CXString(L"Apple").CompareNoCase(L"zebra"), 0);
    EXPECT_EQ(CXString().CompareNoCase(L""), 0);
    EXPECT_EQ(CXString(L"stra\u00DFe \u00E4\u0436").MakeUpper().MakeLower(),
              L"stra\u00DFe \u00E4\u0436");
    EXPECT_EQ(CXString(L"\u00E4\u0436").MakeUpper(), L"\u00C4\u0416");
}

TEST(CXString, SearchesAndClampsPositions)
{
    const CXString text(L"a-b-c");
    EXPECT_EQ(text.Find(L"-"), 1);
    EXPECT_EQ(text.Find(L'-', 2), 3);
    EXPECT_EQ(text.Find(L"-", -5), 1);
    EXPECT_EQ(text.Find(L"-", 99), -1);
    EXPECT_EQ(text.Find(L""), -1);
    EXPECT_EQ(text.ReverseFind(L'-'), 3);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);

    EXPECT_EQ(text.Left(2) + text.Right(2) + text.Mid(2, 2) + text.Mid(2), L"a--cb-b-c");
    EXPECT_EQ(text.Left(99) + text.Right(99), text + text);
    EXPECT_EQ(text.Left(-1) + text.Right(-1) + text.Mid(99, 1), L"");
    EXPECT_EQ(text.GetAt(5), L'\0');
}

TEST(CXString, RemovesReplacesAndTrims)
{
    CXString text(L"a--b-");
    EXPECT_EQ(text.Remove(L'-'), 3);
    EXPECT_EQ(text, L"ab");
    EXPECT_EQ(text.Remove(L"x"), 0);

    CXString grown(L"&Copies & more");
    EXPECT_EQ(grown.Replace(L"&", L"&&"), 2);
    EXPECT_EQ(grown, L"&&Copies && more");
    EXPECT_EQ(grown.Replace(L"", L"x"), 0);
    EXPECT_EQ(grown.Replace(grown, grown + L"!"), 1);
    EXPECT_EQ(grown, L"&&Copies && more!");

    EXPECT_EQ(CXString(L" \t\u00A0 A 4 \r\n").Trim(), L"A 4");
    EXPECT_EQ(CXString(L" \u3000").Trim(), L"");
    EXPECT_TRUE(CXString(L" \t").IsBlank());
    EXPECT_TRUE(CXString().IsBlank());
    EXPECT_FALSE(CXString(L" x ").IsBlank());
}

TEST(CXString, TokenizeKeepsEmptyParts)
{
    using Parts = std::vector<CXString>;
    EXPECT_EQ(CXString(L"a,,b,").Tokenize(L","), (Parts{L"a", L"", L"b", L""}));
    EXPECT_EQ(CXString(L"a::b").Tokenize(L"::"), (Parts{L"a", L"b"}));
    EXPECT_EQ(CXString(L"ab").Tokenize(L""), (Parts{L"ab"}));
    EXPECT_EQ(CXString().Tokenize(L","), Parts{});
}

TEST(CXString, BufferIsWritableAndBounded)
{
    CXString text(L"abc");
    wchar_t* const buffer = text.GetBufferSetLength(5);
    EXPECT_EQ(text.GetLength(), 5);
    EXPECT_EQ(buffer[3], L'\0');
    buffer[3] = L'd';
    text.ReleaseBuffer();
    EXPECT_EQ(text, L"abcd");
    text.ReleaseBuffer(2);
    EXPECT_EQ(text, L"ab");

    // Filled to the brim without a terminator: the length stops at the capacity.
    CXString full;
    wchar_t* const brim = full.GetBuffer(4);
    std::fill(brim, brim + 4, L'x');
    full.ReleaseBuffer();
    EXPECT_EQ(full, L"xxxx");
    CXString never;
    never.ReleaseBuffer(7);
    EXPECT_TRUE(never.IsEmpty());
}

TEST(CXString, Utf8AndUtf16SurviveTheRoundTrip)
{
    // One, two, three and four bytes of UTF-8; the last is a surrogate pair in UTF-16.
    const std::string utf8 = "A\xC3\xBC\xE2\x82\xAC\xF0\x9F\x96\xA8";
    const CXString text = CXString::FromUtf8(utf8);
    EXPECT_EQ(text.ToUtf8(), utf8);
    const std::vector<std::uint8_t> utf16 = text.ToUtf16Le();
    EXPECT_EQ(utf16,
              (std::vector<std::uint8_t>{'A', 0, 0xFC, 0, 0xAC, 0x20, 0x3D, 0xD8, 0xA8, 0xDD}));
    EXPECT_EQ(CXString::FromUtf16Le(utf16.data(), utf16.size()), text);
    EXPECT_EQ(CXString::FromUtf16Le(utf16.data(), 3), L"A");
    EXPECT_EQ(CXString::FromUtf16Le(nullptr, 8), L"");

    const std::uint8_t lone[] = {0x3D, 0xD8, 'x', 0};
    const CXString unpaired = CXString::FromUtf16Le(lone, sizeof lone);
    EXPECT_EQ(unpaired.ToUtf16Le(), std::vector<std::uint8_t>(lone, lone + sizeof lone));
    EXPECT_EQ(unpaired.ToUtf8(), "\xEF\xBF\xBDx");
}

TEST(CXString, MalformedUtf8BecomesReplacementCharacters)
{
    // A continuation without a lead, cut at the end and in the middle, overlong, a surrogate, above
    // the last code point.
    const std::pair<const char*, const wchar_t*> rows[] = {
        {"a\x80z", L"a\uFFFDz"},         {"a\xC3", L"a\uFFFD"},        {"a\xE2\x82z", L"a\uFFFDz"},
        {"\xC0\xAF", L"\uFFFD\uFFFD"},   {"\xE0\x80\xAF", L"\uFFFD"},  {"\xED\xA0\x80", L"\uFFFD"},
        {"\xF4\x90\x80\x80", L"\uFFFD"}, {"\xFF\xFE", L"\uFFFD\uFFFD"}};
    for (const auto& [utf8, text] : rows) {
        EXPECT_EQ(CXString::FromUtf8(utf8), text) << testing::PrintToString(utf8);
    }
}

TEST(CXString, ThreadsMayShareABuffer)
{
    const CXString shared(L"shared by all");
    const auto work = [&shared] {
        for (int i = 0; i < 20000; ++i) {
            CXString own(shared);
            own += L'.';
            ASSERT_EQ(own.GetLength(), 14);
        }
    };
    std::thread first(work);
    std::thread second(work);
    first.join();
    second.join();
    EXPECT_EQ(shared, L"shared by all");
}

} // namespace
