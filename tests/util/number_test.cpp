#include "cxstringprinter.h"
#include "dimension.h"
#include "number.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

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
    const struct
    {
        const wchar_t* text;
        bool reads;
        std::int64_t billionths;
    } rows[] = {
        {L"0", true, 0},
        {L"-1.5", true, -1'500'000'000},
        {L" +.25\t", true, 250'000'000},
        {L"7.", true, 7'000'000'000},
        {L"0.0000000015", true, 2},
        {L"9223372036.854775807", true, std::numeric_limits<std::int64_t>::max()},
        {L"9223372036.854775808", false, 0},
        {L"9223372037", false, 0},
        {L"99999999999999999999999999", false, 0},
        {L"", false, 0},
        {L".", false, 0},
        {L"-", false, 0},
        {L"1,5", false, 0},
        {L"1.2.3", false, 0},
        {L"--1", false, 0},
        {L"1e5", false, 0},
        {L"12 mm", false, 0},
        {L"\u0661", false, 0}, // another script's digit
    };
    for (const auto& row : rows) {
        Number number(77);
        EXPECT_EQ(Number::TryParse(row.text, number), row.reads) << CXString(row.text).ToUtf8();
        const Number expected = row.reads ? Number::FromBillionths(row.billionths) : Number(77);
        EXPECT_EQ(number, expected) << CXString(row.text).ToUtf8();
    }
    EXPECT_EQ(Number(CXString(L"2,5"), L','), Number(2.5));
    EXPECT_EQ(Number(CXString(L"rubbish")), Number(0));
}

TEST(Number, RoundsToWholeNumbers)
{
    const struct
    {
        double value;
        int nearest;
        int down;
        int up;
        int truncated;
    } rows[] = {
        {2.5, 3, 2, 3, 2}, {-2.5, -3, -3, -2, -2},
        {2.4, 2, 2, 3, 2}, {-2.4, -2, -3, -2, -2},
        {4.0, 4, 4, 4, 4}, {-4.0, -4, -4, -4, -4},
        {0.0, 0, 0, 0, 0}, {9e9, INT_MAX, INT_MAX, INT_MAX, INT_MAX},
    };
    for (const auto& row : rows) {
        const Number number(row.value);
        EXPECT_EQ(number.GetIntValue(Rounding::Nearest), row.nearest) << row.value;
        EXPECT_EQ(number.GetIntValue(Rounding::Down), row.down) << row.value;
        EXPECT_EQ(number.GetIntValue(Rounding::Up), row.up) << row.value;
        EXPECT_EQ(number.GetIntValue(Rounding::Truncate), row.truncated) << row.value;
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

TEST(Number, ConvertsNumbersAsWritten)
{
    EXPECT_DOUBLE_EQ(Number(CXString(L"0.1")).GetDoubleValue(), 0.1);
    EXPECT_LT(Number(1), Number(1.000000001));
    EXPECT_NE(Number(1), Number(2));
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
    EXPECT_EQ(Dimension(1, Units::Inch).GetUnits(), Units::Inch);
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

TEST(Dimension, ChangingTheUnitOrSignKeepsTheLength)
{
    Dimension length(1.25, Units::Inch);
    length.SetUnits(Units::Millimetre);
    EXPECT_EQ(length.GetValue(), Number(31.75));
    length.ReverseSign();
    EXPECT_EQ(length, Dimension(-1.25, Units::Inch));
    EXPECT_EQ(Dimension::FromCount(length.GetCount(), Units::Point), length);
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
