#include "cxstringprinter.h"
#include "dimension.h"
#include "number.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cmath>
#include <limits>
#include <utility>

namespace {

using Rounding = Number::Rounding;
using Units = Dimension::UnitsEnum;

constexpr Units kUnits[] = {Units::Inch, Units::Millimetre, Units::TenthOfMillimetre, Units::Point};

std::string shown(const Number& number, int digits, bool trim = false)
{
    return number.GetStringValue(digits, L'.', trim).ToUtf8();
}

TEST(Number, ReadsNumbersAndNothingElse)
{
    const std::pair<const wchar_t*, std::int64_t> numbers[] = {
        {L"0", 0},
        {L"-1.5", -1'500'000'000},
        {L" +.25\t", 250'000'000},
        {L"7.", 7'000'000'000},
        {L"0.0000000015", 2},
        {L"9223372036.854775807", std::numeric_limits<std::int64_t>::max()}};
    for (const auto& [text, billionths] : numbers) {
        Number number(77);
        EXPECT_TRUE(Number::TryParse(text, number)) << CXString(text).ToUtf8();
        EXPECT_EQ(number, Number::FromBillionths(billionths)) << CXString(text).ToUtf8();
    }
    // Too large, not a number, not one only, another script's digit.
    for (const wchar_t* const text :
         {L"9223372036.854775808", L"9223372037", L"99999999999999999999999999", L"", L".", L"-",
          L"1,5", L"1.2.3", L"--1", L"1e5", L"12 mm", L"\u0661"}) {
        Number number(77);
        EXPECT_FALSE(Number::TryParse(text, number)) << CXString(text).ToUtf8();
        EXPECT_EQ(number, Number(77)) << CXString(text).ToUtf8();
    }
    EXPECT_EQ(Number(CXString(L"2,5"), L','), Number(2.5));
    EXPECT_EQ(Number(CXString(L"rubbish")), Number(0));
}

TEST(Number, RoundsToWholeNumbers)
{
    // Value, then nearest, down, up, truncated.
    const std::pair<double, std::array<int, 4>> rows[] = {
        {2.5, {3, 2, 3, 2}},
        {-2.5, {-3, -3, -2, -2}},
        {2.4, {2, 2, 3, 2}},
        {-2.4, {-2, -3, -2, -2}},
        {4.0, {4, 4, 4, 4}},
        {-4.0, {-4, -4, -4, -4}},
        {9e9, {INT_MAX, INT_MAX, INT_MAX, INT_MAX}}};
    for (const auto& [value, expected] : rows) {
        const Number number(value);
        EXPECT_EQ(
            expected,
            (std::array{number.GetIntValue(Rounding::Nearest), number.GetIntValue(Rounding::Down),
                        number.GetIntValue(Rounding::Up), number.GetIntValue(Rounding::Truncate)}))
            << value;
    }
    EXPECT_EQ(Number(INT_MIN).GetIntValue(), INT_MIN);
    EXPECT_EQ(Number(-9e9).GetIntValue(), INT_MIN);
    EXPECT_EQ(Number(-9e9).GetLongValue(), -9'000'000'000);
}

TEST(Number, StopsAtItsLimits)
{
    const Number largest(1e300);
    EXPECT_EQ(largest, Number(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(-largest, Number(-1e300));
    EXPECT_EQ(Number(std::nan("")), Number(0));
    EXPECT_EQ(shown(largest, 9), "9223372036.854775807");
    EXPECT_EQ(shown(-largest, 0), "-9223372036");
    EXPECT_EQ(-Number::FromBillionths(std::numeric_limits<std::int64_t>::min()), largest);
}

TEST(Number, ShowsDigits)
{
    EXPECT_EQ(shown(1200, 0), "1200");
    EXPECT_EQ(shown(Number(8.5), 2), "8.50");
    EXPECT_EQ(shown(Number(8.5), 2, true), "8.5");
    EXPECT_EQ(shown(8, 2, true), "8");
    EXPECT_EQ(shown(Number(-0.004), 2), "0.00");
    EXPECT_EQ(shown(Number(-0.005), 2), "-0.01");
    EXPECT_EQ(shown(Number(0.995), 2), "1.00");
    EXPECT_EQ(shown(Number(0.5), 99), "0.500000000");
    EXPECT_EQ(shown(Number(0.5), -1), "1");
    EXPECT_EQ(Number(8.25).GetStringValue(2, L','), L"8,25");
}

TEST(Dimension, KnownLengths)
{
    const Dimension a4(210, Units::Millimetre);
    EXPECT_EQ(a4, Dimension(2100, Units::TenthOfMillimetre));
    EXPECT_EQ(a4.GetStringValue(Units::Inch, 2), L"8.27");
    EXPECT_EQ(Dimension(1, Units::Inch), Dimension(72, Units::Point));
    EXPECT_EQ(Dimension(1, Units::Inch), Dimension(25.4, Units::Millimetre));
    EXPECT_EQ(Dimension(11, Units::Inch).GetDoubleValue(Units::Millimetre), 279.4);
    EXPECT_LT(a4, Dimension(8.5, Units::Inch));
    Dimension length(1.25, Units::Inch);
    length.SetUnits(Units::Millimetre);
    length.ReverseSign();
    EXPECT_EQ(length.GetValue(), Number(-31.75));
    EXPECT_EQ(length, Dimension(-1.25, Units::Inch));
}

TEST(Dimension, NoWayThroughTheUnitsLosesAnything)
{
    // Steps that are no multiples of each other, with five decimals; short ones and long ones.
    for (std::int64_t hundredThousandths = -8'000'001; hundredThousandths < 150'000'000;
         hundredThousandths += 123'457) {
        const Number value = Number::FromBillionths(hundredThousandths * 10'000);
        for (const Units from : kUnits) {
            const Dimension length(value, from);
            ASSERT_EQ(length.GetValue(from), value);
            for (const Units through : kUnits) {
                const Dimension again(length.GetValue(through), through);
                ASSERT_EQ(again, length) << hundredThousandths;
                const Dimension byDouble(length.GetDoubleValue(through), through);
                ASSERT_EQ(byDouble, length) << hundredThousandths;
                ASSERT_EQ(again.GetValue(from), value);
            }
        }
    }
}

TEST(Dimension, StopsAtItsLimits)
{
    const Dimension longest =
        Dimension::FromCount(std::numeric_limits<std::int64_t>::max(), Units::Inch);
    EXPECT_EQ(longest.GetValue(Units::TenthOfMillimetre), Number(1e300));
    EXPECT_GT(Dimension(Number(1e300), Units::Inch), Dimension(9e9, Units::Inch));
    Dimension shortest =
        Dimension::FromCount(std::numeric_limits<std::int64_t>::min(), Units::Inch);
    shortest.ReverseSign();
    EXPECT_EQ(shortest, longest);
}

} // namespace
