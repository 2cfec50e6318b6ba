// What a typed number or length comes to.

#include <gtest/gtest.h>

#include "uinumberrules.h"
#include "uitypednumber.h"
#include "uiunitnames.h"

namespace {

using Fault = UINumberRules::Fault;
using Units = Dimension::UnitsEnum;

constexpr std::int64_t kMillimetre = 36'000'000;

/// Names that a test can tell in its messages.
const char* nameOf(Fault fault)
{
    constexpr const char* kNames[] = {"value",     "empty",        "no number", "unit",
                                      "not whole", "out of range", "not now"};
    return kNames[static_cast<int>(fault)];
}

UINumberRules wholeRules()
{
    UINumberRules rules;
    rules.ranges = {{1, 99}, {200, 1999}};
    rules.unitText = L"%";
    return rules;
}

UINumberRules lengthRules(Units units, wchar_t separator)
{
    UINumberRules rules;
    rules.isLength = true;
    rules.units = units;
    rules.digits = units == Units::Inch ? 2 : 0;
    rules.increment = units == Units::Inch ? 5 : 1;
    rules.decimalSeparator = separator;
    rules.ranges = {{984 * kMillimetre / 10, 3302 * kMillimetre / 10}};
    return rules;
}

TEST(UINumberRulesTest, TypedTextsComeToValuesOrToTheKindOfMistake)
{
    enum Field
    {
        Whole,       // 1 to 99 and 200 to 1999, point
        WholeComma,  // the same, comma
        Metric,      // 98.4 to 330.2 mm, point
        MetricComma, // the same, comma
        Inches       // the same, shown in inches
    };
    const UINumberRules kRules[] = {
        wholeRules(), wholeRules(), lengthRules(Units::Millimetre, L'.'),
        lengthRules(Units::Millimetre, L','), lengthRules(Units::Inch, L'.')};
    UIUnitNames names;
    names.add(L"Zoll; Fuß", {Units::Inch, 1});
    const struct
    {
        Field field;
        const wchar_t* typed;
        const char* fault;
        const char* shown; ///< the value, or the nearest allowed one
    } rows[] = {
        // clang-format off
        { Whole,       L"12",                      "value",        "12"   },
        { Whole,       L"  +12\t",                 "value",        "12"   },
        { Whole,       L"\r\n12\r\n",              "value",        "12"   },
        { Whole,       L"1\r\n2",                  "unit",         ""     },
        { Whole,       L"\u0661\u0662",            "value",        "12"   },
        { Whole,       L"\u0967\u0968",            "value",        "12"   },
        { Whole,       L"\uFF11\uFF12\uFF05",      "value",        "12"   },
        { Whole,       L"\u200F12\u200E",          "value",        "12"   },
        { Whole,       L"12 %",                    "value",        "12"   },
        { Whole,       L"1,234",                   "value",        "1234" },
        { Whole,       L"1 234",                   "value",        "1234" },
        { Whole,       L"1\u202F234",              "value",        "1234" },
        { Whole,       L"1'234",                   "value",        "1234" },
        { Whole,       L"12.0",                    "value",        "12"   },
        { Whole,       L"12,0",                    "value",        "12"   },
        { Whole,       L"12.5",                    "not whole",    ""     },
        { WholeComma,  L"1.234",                   "value",        "1234" },
        { WholeComma,  L"1,234",                   "not whole",    ""     },
        { Whole,       L"150",                     "out of range", "200"  },
        { Whole,       L"149",                     "out of range", "99"   },
        { Whole,       L"\u22125",                 "out of range", "1"    },
        { Whole,       L"99999999999999999999999", "out of range", "1999" },
        { Whole,       L"-9999999999999999999999", "out of range", "1"    },
        { Whole,       L"",                        "empty",        ""     },
        { Whole,       L" \u00A0\n",               "empty",        ""     },
        { Whole,       L"abc",                     "no number",    ""     },
        { Whole,       L"-",                       "no number",    ""     },
        { Whole,       L".",                       "no number",    ""     },
        { Whole,       L"--5",                     "no number",    ""     },
        { Whole,       L"1.2.3",                   "no number",    ""     },
        { Whole,       L"1,23,4",                  "no number",    ""     },
        { Whole,       L"12 mm",                   "unit",         ""     },
        { Metric,      L"210",                     "value",        "210"  },
        { Metric,      L"98.4",                    "value",        "98.4" },
        { Metric,      L"98",                      "out of range", "98.4" },
        { Metric,      L"148,5",                   "value",        "148.5"},
        { MetricComma, L"148.5",                   "value",        "148,5"},
        { MetricComma, L"\u0661\u0664\u0668\u066B\u0665", "value", "148,5"},
        { Metric,      L"21 cm",                   "value",        "210"  },
        { Metric,      L"0.2 m",                   "value",        "200"  },
        { Metric,      L"8 in",                    "value",        "203.2"},
        { Metric,      L"8IN.",                    "value",        "203.2"},
        { Metric,      L"8 Zoll",                  "value",        "203.2"},
        { Metric,      L"8\u2033",                 "value",        "203.2"},
        { Metric,      L"360 pt",                  "value",        "127"  },
        { Metric,      L"12 ells",                 "unit",         ""     },
        { Metric,      L"mm",                      "no number",    ""     },
        { Inches,      L"8.5",                     "value",        "8.50" },
        { Inches,      L".5",                      "out of range", "3.87" },
        { Inches,      L"0.125",                   "out of range", "3.87" },
        { Inches,      L"3.87",                    "value",        "3.87" }, // the lower end, as shown
        { Inches,      L"13",                      "value",        "13.00"}, // the upper end, likewise
        { Inches,      L"8.125",                   "value",        "8.125"},
        { Inches,      L"210 mm",                  "value",        "8.27" },
        // clang-format on
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(CXString(row.typed).ToUtf8());
        UINumberRules rules = kRules[row.field];
        if (row.field == WholeComma)
            rules.decimalSeparator = L',';
        const auto reading = rules.read(row.typed, names);
        EXPECT_STREQ(nameOf(reading.fault), row.fault);
        const bool hasValue = reading.fault == Fault::None || reading.fault == Fault::OutOfRange;
        EXPECT_EQ(hasValue ? rules.text(reading.value).ToUtf8() : "", row.shown);
        EXPECT_TRUE(!hasValue || rules.allows(reading.value));
    }
}

// 1 to 20 is what another setting leaves of 1 to 99.
TEST(UINumberRulesTest, WhatIsRuledOutNowIsAnotherMistakeThanWhatThereIsNot)
{
    UINumberRules rules;
    rules.ranges = {{1, 20}};
    rules.supported = {{1, 99}};
    const UIUnitNames names;
    const struct
    {
        const wchar_t* typed;
        Fault fault;
        std::int64_t value;
    } rows[] = {{L"20", Fault::None, 20},
                {L"21", Fault::NotNow, 20},
                {L"99", Fault::NotNow, 20},
                {L"100", Fault::OutOfRange, 20},
                {L"0", Fault::OutOfRange, 1}};
    for (const auto& row : rows) {
        const auto reading = rules.read(row.typed, names);
        EXPECT_STREQ(nameOf(reading.fault), nameOf(row.fault)) << row.value;
        EXPECT_EQ(reading.value, row.value);
    }
    EXPECT_EQ(rules.longestText(), 2) << "as wide as it may become";
    UINumberRules other = rules;
    other.ranges = {{1, 99}};
    EXPECT_TRUE(other.writesLike(rules));
    EXPECT_FALSE(other == rules);
    other.decimalSeparator = L',';
    EXPECT_FALSE(other.writesLike(rules));
}

TEST(UINumberRulesTest, StepsCountFromWhatIsShownAndStopAtTheEnds)
{
    const UINumberRules whole = wholeRules();
    const UINumberRules inches = lengthRules(Units::Inch, L'.');
    UINumberRules tenths = lengthRules(Units::Millimetre, L'.');
    tenths.grid = kMillimetre / 10;
    const struct
    {
        const UINumberRules& rules;
        std::int64_t from;
        std::int64_t steps;
        const char* shown;
    } rows[] = {
        {whole, 5, 1, "6"},
        {whole, 99, 1, "200"},
        {whole, 200, -1, "99"},
        {whole, 1, -20, "1"},
        {whole, 1990, 20, "1999"},
        {inches, 210 * kMillimetre, 1, "8.32"}, // from 8.27
        {inches, 100 * kMillimetre, -2, "3.87"},
        {inches, 330 * kMillimetre, 5, "13.00"},
        {tenths, 1503 * kMillimetre / 10, 1, "151"},
    };
    for (const auto& row : rows) {
        const std::int64_t next = row.rules.step(row.from, row.steps);
        EXPECT_EQ(row.rules.text(next).ToUtf8(), row.shown);
        EXPECT_TRUE(row.rules.allows(next)) << row.shown;
    }
}

} // namespace
