#include "uimenuitembasedata.h"

#include <gtest/gtest.h>

#include "papersizemenumetricdata.h"
#include "papersizemenuusdata.h"

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
            .subMenu = kSubMenu};
}

TEST(UIMenuItemBaseData, EachKindAnswersWithItsOwnFieldsOnly)
{
    // clang-format off
    // Label, feature, value, loaded paper, action, dialog, picture; can it be selected,
    // marked, is it dynamic; sections of its sub-menu.
    const std::pair<UIMenuItemKind, std::vector<unsigned>> rows[] = {
        {UIMenuItemKind::Item,      {90, 3003, 5121, 1,    14, 103, 60, 1, 1, 0, 1}},
        {UIMenuItemKind::Dynamic,   {0,  3003, 1,    1,    0,  0,   0,  1, 1, 1, 0}},
        {UIMenuItemKind::Header,    {90, 1,    1,    1,    0,  0,   60, 0, 0, 0, 0}},
        {UIMenuItemKind::PaperTray, {90, 3003, 5121, 3002, 0,  0,   60, 1, 1, 0, 0}},
    };
    // clang-format on
    for (const auto& [kind, expected] : rows) {
        const UIMenuItemRecord record = full(kind);
        const auto item = UIMenuItemBaseData::create(record);
        const std::vector<unsigned> answers{item->getLabel(),
                                            static_cast<unsigned>(item->getFeature()),
                                            static_cast<unsigned>(item->getValue()),
                                            static_cast<unsigned>(item->getLoadedPaper()),
                                            item->getAction(),
                                            static_cast<unsigned>(item->getDialog()),
                                            item->getImage(),
                                            item->isSelectable(),
                                            item->isCheckable(),
                                            item->isDynamic(),
                                            static_cast<unsigned>(item->getSubMenu().size())};
        EXPECT_EQ(answers, expected) << "kind " << static_cast<unsigned>(kind);
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

} // namespace
