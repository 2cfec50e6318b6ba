#include "uidump.h"

#include <gtest/gtest.h>

namespace {

TEST(UIDump, CollectsIndentedLinesWhileItLives)
{
    std::wstring outer;
    std::wstring inner;
    UIDump::line(L"lost");
    {
        const UIDump outerDump(outer);
        UIDump::line(L"page");
        {
            const UIDump::Level level;
            UIDump::line(L"control");
            const UIDump innerDump(inner);
            UIDump::line(L"elsewhere");
        }
        UIDump::line(L"page");
    }
    EXPECT_FALSE(UIDump::isCollecting());
    EXPECT_EQ(L"page\n  control\npage\n", outer);
    EXPECT_EQ(L"elsewhere\n", inner);
}

} // namespace
