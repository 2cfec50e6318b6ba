#include <gtest/gtest.h>

#include "uidumptext.h"
#include "visibletext.h"

namespace {

using namespace o7::story;

TEST(PlainLabel, IsWhatAPersonReads)
{
    struct Row
    {
        const char* text;
        const char* label;
    };
    constexpr Row kRows[] = {
        {"Copies", "Copies"},
        {"&Copies:", "Copies"},
        {"Save && &close", "Save & close"},
        {"R&&D:", "R&D"},
        {"Kopien(&K):", "Kopien"},
        {"Kopien (&K)", "Kopien"},
        {"Size (mm)", "Size (mm)"},
        {"Ratio 1:2", "Ratio 1:2"},
        {"\u90e8\u6570(&C)\uff1a", "\u90e8\u6570"},
        {"  Tray :  ", "Tray"},
        {"&", ""},
        {"(&", "("},
        {":", ""},
        {"", ""},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(plainLabel(row.text), row.label) << row.text;
    }
}

TEST(TabTitleTest, KnowsItsPageWithAndWithoutMark)
{
    struct Row
    {
        const char* shown;
        const char* page;
        bool isOf;
        bool marked;
    };
    constexpr Row kRows[] = {
        {"Layout", "Layout", true, false},     {"Layout !", "Layout", true, true},
        {"Lay\u2026 !", "Layout", true, true}, {"Lay\u2026 !", "Paper", false, true},
        {"Lay", "Layout", false, false},       {"Layout !", "Layout !", false, true},
        {"Hurry!", "Hurry!", true, false},
    };
    for (const Row& row : kRows) {
        const TabTitle tab(row.shown);
        EXPECT_EQ(tab.isOf(row.page), row.isOf) << row.shown;
        EXPECT_EQ(tab.marked, row.marked) << row.shown;
    }
}

constexpr char kDump[] =
    "ui of \"Office\"\n"
    "  tab \"Paper\" 252 x 218\n"
    "    not visited\n"
    "  tab \"Layout\" 252 x 218, in conflict\n"
    "    list \"&Staple:\" = \"2 \\\"staples\\\"\" [disabled, cleared] because "
    "\"No finisher.\\nSee \\\\ there.\"\n"
    "      - \"R&D\" [hidden]\n"
    "      - \"None\"\n"
    "    check \"Booklet\" = \"checked\" [enabled, conflict]\n"
    "  area under the pages\n"
    "    status \"In conflict: Booklet\"";

TEST(DumpTextTest, ReadsEveryPartOfALine)
{
    const DumpText dump(kDump);
    const auto page = dump.under("tab", "Layout");
    ASSERT_EQ(page.size(), 4U);
    EXPECT_EQ(page[0].kind, "list");
    EXPECT_TRUE(page[0].isLabelled("Staple"));
    EXPECT_EQ(page[0].value, "2 \"staples\"");
    EXPECT_EQ(page[0].reason, "No finisher.\nSee \\ there.");
    EXPECT_TRUE(page[0].is("disabled"));
    EXPECT_TRUE(page[0].is("cleared"));
    EXPECT_FALSE(page[0].is("clear"));
    EXPECT_TRUE(page[1].isLabelled("R&D"));
    EXPECT_TRUE(page[1].is("hidden"));
    EXPECT_EQ(page[2].state, "");
    EXPECT_TRUE(page[3].is("conflict"));
    EXPECT_FALSE(page[3].is("disabled"));
}

TEST(DumpTextTest, FindsSectionsByTitleAndByTab)
{
    const DumpText dump(kDump);
    EXPECT_EQ(dump.under("tab", TabTitle("La\u2026 !")).size(), 4U);
    ASSERT_EQ(dump.under("tab", "Paper").size(), 1U);
    EXPECT_EQ(dump.under("tab", "Paper")[0].kind, "not visited");
    EXPECT_TRUE(dump.under("tab", "Colour").empty());
    EXPECT_TRUE(dump.under("dialog", "Layout").empty());
}

TEST(DumpTextTest, DamagedLinesGiveWhatTheyHave)
{
    for (const char* text : {"", "\n\n", "list \"", "list \"x\" = \"", "list \"x\" [",
                             "list \"x\" because \"\\", "list \"x\\"}) {
        EXPECT_TRUE(DumpText(text).under("spin", "x").empty()) << text;
    }
    EXPECT_EQ(DumpText("tab \"x\n  list \"y").under("tab", "x").size(), 1U);
}

} // namespace
