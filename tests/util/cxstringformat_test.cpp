#include "cxstring.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cstdarg>
#include <limits>

namespace {

// One call of Format and what it must give; the same on every platform.
#define EXPECT_FORMAT(expected, ...)                                                               \
    EXPECT_EQ(CXString::Formatted(__VA_ARGS__).ToUtf8(), CXString(expected).ToUtf8())

TEST(CXStringFormat, Strings)
{
    const wchar_t* const none = nullptr;
    const char unterminated[] = {'a', 'b'};
    EXPECT_FORMAT(L"[Tray]", L"[%s]", L"Tray");
    EXPECT_FORMAT(L"[Tray]", L"[%ls]", L"Tray");
    EXPECT_FORMAT(L"[\u00FC]", L"[%S]", "\xC3\xBC");
    EXPECT_FORMAT(L"[\u00FC]", L"[%hs]", "\xC3\xBC");
    EXPECT_FORMAT(L"[wide]", L"[%lS]", L"wide");
    EXPECT_FORMAT(L"[(null)]", L"[%s]", none);
    EXPECT_FORMAT(L"[  ab]", L"[%4.2s]", L"abc");
    EXPECT_FORMAT(L"[ab  ]", L"[%-4.*s]", 2, L"abc");
    EXPECT_FORMAT(L"[ab]", L"[%.2hs]", unterminated);
    EXPECT_FORMAT(L"[ab  ]", L"[%*s]", -4, L"ab");
    EXPECT_FORMAT(L"[x\u20AC]", L"[%c%c]", L'x', L'\u20AC');
    EXPECT_FORMAT(L"[y]", L"[%hc]", 'y');
    EXPECT_FORMAT(L"100 %", L"%d %%", 100);
}

TEST(CXStringFormat, Integers)
{
    EXPECT_FORMAT(L"-7 7 +7  7", L"%d %u %+d % d", -7, 7U, 7, 7);
    EXPECT_FORMAT(L"[00042|   42|42   |00042]", L"[%05d|%5d|%-5d|%.5d]", 42, 42, 42, 42);
    EXPECT_FORMAT(L"[-0042]", L"[%05d]", -42);
    EXPECT_FORMAT(L"ff FF 0xff 0XFF 17 017", L"%x %X %#x %#X %o %#o", 255, 255, 255, 255, 15, 15);
    EXPECT_FORMAT(L"[0x00ff]", L"[%#06x]", 255);
    EXPECT_FORMAT(L"[]", L"[%.0d]", 0);
    EXPECT_FORMAT(L"-1 65535", L"%hd %hu", 65535, 65535);
    EXPECT_FORMAT(L"-1 255", L"%hhd %hhu", 255, 255);
    EXPECT_FORMAT(L"-2147483648", L"%d", INT_MIN);
    EXPECT_FORMAT(L"-9223372036854775808", L"%lld", LLONG_MIN);
    EXPECT_FORMAT(L"18446744073709551615", L"%I64u", ULLONG_MAX);
    EXPECT_FORMAT(L"8 9 10", L"%ld %I32d %zu", 8L, 9, sizeof(char[10]));
    EXPECT_FORMAT(L"000000000000BEEF", L"%p", reinterpret_cast<void*>(0xBEEF));
}

TEST(CXStringFormat, FloatingPointIgnoresTheLocale)
{
    // The host program may have chosen a locale with a comma; where there is none, no harm done.
    const char* const former = std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    EXPECT_FORMAT(L"1.500000 1.50 2 1e+10", L"%f %.2f %.0f %g", 1.5, 1.5, 2.4, 1e10);
    EXPECT_FORMAT(L"[-001.5]", L"[%06.1f]", -1.5);
    EXPECT_FORMAT(L"1.250000e-05 1.25E-05", L"%e %G", 1.25e-5, 1.25e-5);
    EXPECT_FORMAT(L"inf [  -INF]", L"%f [%06F]", std::numeric_limits<double>::infinity(),
                  -std::numeric_limits<double>::infinity());
    EXPECT_EQ(CXString::Formatted(L"%f", std::numeric_limits<double>::max()).GetLength(), 316);
    if (former != nullptr) {
        std::setlocale(LC_NUMERIC, "C");
    }
}

TEST(CXStringFormat, RefusesWhatItDoesNotKnowAndLeavesTheStringAlone)
{
    int written = 0;
    const wchar_t* const none = nullptr;
    CXString text(L"kept");
    EXPECT_FALSE(text.Format(none));
    EXPECT_FALSE(text.Format(L"%d%n", 1, &written));
    EXPECT_FALSE(text.Format(L"%"));
    EXPECT_FALSE(text.Format(L"%y", 1));
    EXPECT_FALSE(text.Format(L"%5"));
    EXPECT_FALSE(text.Format(L"%65536d", 1));
    EXPECT_FALSE(text.Format(L"%99999999999999999999d", 1));
    EXPECT_FALSE(text.Format(L"%*d", 1 << 20, 1));
    EXPECT_FALSE(text.Format(L"%.*f", 1 << 20, 1.0));
    EXPECT_EQ(text, L"kept");
    EXPECT_EQ(written, 0);
    EXPECT_EQ(CXString::Formatted(L"%y"), L"");
}

TEST(CXStringFormat, ArgumentsMayLieInTheString)
{
    CXString text(L"page");
    EXPECT_TRUE(text.Format(L"%s %d, %s", text.c_str(), 3, text.c_str()));
    EXPECT_EQ(text, L"page 3, page");
}

} // namespace
