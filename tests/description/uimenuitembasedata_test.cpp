#include "uimenuitembasedata.h"

#include <gtest/gtest.h>

#include "papersizemenumetricdata.h"
#include "papersizemenuusdata.h"
#include "uimenucontroldata.h"

namespace {

constexpr DataModelIds::tagFeatureEnum kTray{3003};
constexpr DataModelIds::tagFeatureEnum kPaper{3002};
constexpr DataModelIds::tagValueEnum kTray1{5121};

constexpr UIMenuItemRecord kInner[] = {{.label = 91}};
constexpr UIMenuSectionRecord kSubMenu[] = {{.items = kInner}};

/// Every field set, so that an item which answers with a field it should not use is found.
constexpr UIMenuItemRecord full(UIMenuItemKind kind)
{
    return {.kind = kind,
            .label = 90,
            .feature = kTray,
            .value = kTray1,
            .loadedPaper = kPaper,
            .action = 14,
            .dialog = DialogId::QuickSettings,
            .image = 60,
            .indent = 2,
            .subMenu = kSubMenu};
}

struct Row
{
    UIMenuItemKind kind;
    std::uint32_t label;
    int feature;
    int value;
    int loadedPaper;
    std::uint32_t action;
    std::uint32_t dialog;
    std::uint32_t image;
    bool selectable;
    bool checkable;
    bool dynamic;
    std::size_t subMenu;
};

// clang-format off
constexpr Row kRows[] = {
    // kind                    label feature value paper action dialog image select check  dynamic sub
    {UIMenuItemKind::Item,      90,  3003,   5121, 1,    14,    103,   60,   true,  true,  false,  1},
    {UIMenuItemKind::Dynamic,   0,   3003,   1,    1,    0,     0,     0,    true,  true,  true,   0},
    {UIMenuItemKind::Header,    90,  1,      1,    1,    0,     0,     60,   false, false, false,  0},
    {UIMenuItemKind::PaperTray, 90,  3003,   5121, 3002, 0,     0,     60,   true,  true,  false,  0},
};
// clang-format on

TEST(UIMenuItemBaseData, EachKindAnswersForItself)
{
    for (const Row& row : kRows) {
        SCOPED_TRACE(static_cast<std::uint32_t>(row.kind));
        const UIMenuItemRecord record = full(row.kind);
        const auto item = UIMenuItemBaseData::create(record);
        EXPECT_EQ(item->getLabel(), row.label);
        EXPECT_EQ(item->getFeature(), row.feature);
        EXPECT_EQ(item->getValue(), row.value);
        EXPECT_EQ(item->getLoadedPaper(), row.loadedPaper);
        EXPECT_EQ(item->getAction(), row.action);
        EXPECT_EQ(static_cast<std::uint32_t>(item->getDialog()), row.dialog);
        EXPECT_EQ(item->getImage(), row.image);
        EXPECT_EQ(item->getIndent(), 2u);
        EXPECT_EQ(item->isSelectable(), row.selectable);
        EXPECT_EQ(item->isCheckable(), row.checkable);
        EXPECT_EQ(item->isDynamic(), row.dynamic);
        EXPECT_EQ(item->getSubMenu().size(), row.subMenu);
    }
}

TEST(UIMenuItemBaseData, ItemWithoutAValueCarriesNoMark)
{
    static constexpr UIMenuItemRecord kOpensDialog{.label = 1, .dialog = DialogId::QuickSettings};
    EXPECT_FALSE(UIMenuItemBaseData::create(kOpensDialog)->isCheckable());
}

std::vector<int> valuesOf(const PaperSizeMenuData& menu)
{
    std::vector<int> values;
    for (const auto& section : menu.getSections()) {
        EXPECT_NE(section->getTitle(), 0u);
        for (const auto& item : section->getItems())
            values.push_back(item->getValue());
    }
    return values;
}

TEST(PaperSizeMenuData, KnownSizesComeFirst)
{
    EXPECT_EQ(valuesOf(PaperSizeMenuMetricData()),
              (std::vector<int>{5111, 5110, 5112, 5113, 5114, 5115, 5116, 5117}));
    EXPECT_EQ(valuesOf(PaperSizeMenuUSData()),
              (std::vector<int>{5113, 5114, 5115, 5111, 5110, 5112, 5116, 5117}));
}

TEST(UIMenuControlData, OwnsItsSections)
{
    static constexpr UIMenuRecord kMenu{.sections = kSubMenu};
    const UIControlRecord record{.kind = UIControlKind::Menu, .extra = &kMenu};
    const UIMenuControlData menu(record);
    ASSERT_EQ(menu.getSections().size(), 1u);
    EXPECT_EQ(menu.getSections()[0]->getItems().at(0)->getLabel(), 91u);
}

} // namespace
