#include "documentvalues.h"

#include <gtest/gtest.h>

#include "systemnumbers.h"

namespace o7 {
namespace {

ValueId value(int number, const wchar_t* name)
{
    return {static_cast<DataModelIds::tagValueEnum>(number), FeatureId(), name, CXString()};
}

TEST(DocumentValues, KnowPapersByNameOrByTheSizeInTheirName)
{
    struct Row
    {
        const wchar_t* name;
        int width;
        int height;
    };
    // clang-format off
    constexpr Row rows[] = {
        {L"a4",                  2100, 2970},
        {L"label-100x150mm",     1000, 1500},
        {L"photo-6x4in",         1016, 1524},
        {L"photo-10x15cm",       1000, 1500},
        {L"card-8.5x5.4cm",       540,  850},
        {L"3.5x5in",              889, 1270},
        {L"label-100x150",          0,    0},
        {L"label-100mm",            0,    0},
        {L"label-0x150mm",          0,    0},
        {L"label-x150mm",           0,    0},
        {L"label-9999999999x1mm",   0,    0},
        {L"label-1.2.3x4mm",        0,    0},
        {L"x",                      0,    0},
        {L"",                       0,    0},
    };
    // clang-format on
    for (const Row& row : rows) {
        const PaperSize size = paperSize(row.name).value_or(PaperSize{});
        EXPECT_EQ(size.width, row.width) << CXString(row.name).ToUtf8();
        EXPECT_EQ(size.height, row.height) << CXString(row.name).ToUtf8();
    }
}

TEST(DocumentValues, KnowResolutionsByName)
{
    struct Row
    {
        const wchar_t* name;
        int across;
        int down;
    };
    constexpr Row rows[] = {{L"600-dpi", 600, 600},
                            {L"1200x600-dpi", 1200, 600},
                            {L"dpi-600", 0, 0},
                            {L"600x-dpi", 0, 0},
                            {L"600", 0, 0}};
    for (const Row& row : rows) {
        const DotsPerInch dots = resolutionOf(row.name).value_or(DotsPerInch{});
        EXPECT_EQ(dots.across, row.across) << CXString(row.name).ToUtf8();
        EXPECT_EQ(dots.down, row.down) << CXString(row.name).ToUtf8();
    }
}

TEST(DocumentValues, GiveOwnNumbersWhereTheSystemHasNone)
{
    const auto own = systemNumber(DocumentField::PaperSize, value(5259, L"sra3"));
    ASSERT_TRUE(own);
    EXPECT_GT(*own, kFirstOwnPaper);
    EXPECT_NE(own, systemNumber(DocumentField::PaperSize, value(5260, L"a3-plus")));
    EXPECT_EQ(systemNumber(DocumentField::PaperSize, value(5111, L"a4")), 9);
    EXPECT_EQ(systemNumber(DocumentField::PaperSize,
                           value(DataModelIds::kValueFirstUserText, L"My paper")),
              std::nullopt);
    EXPECT_EQ(systemNumber(DocumentField::Duplex, value(5149, L"three-sided")), std::nullopt);
}

} // namespace
} // namespace o7
