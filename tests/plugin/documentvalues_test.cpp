#include "documentvalues.h"

#include <gtest/gtest.h>

#include "systemnumbers.h"

namespace o7 {
namespace {

ValueId value(int number, const wchar_t* name)
{
    return {static_cast<DataModelIds::tagValueEnum>(number), FeatureId(), name, CXString()};
}

TEST(DocumentValues, KnowResolutionsByName)
{
    struct Row
    {
        const wchar_t* name;
        int across;
        int down;
    };
    constexpr Row rows[] = {{L"600-dpi", 600, 600},     {L"1200x600-dpi", 1200, 600},
                            {L"dpi-600", 0, 0},         {L"600x-dpi", 0, 0},
                            {L"99999999999-dpi", 0, 0}, {L"600", 0, 0}};
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
