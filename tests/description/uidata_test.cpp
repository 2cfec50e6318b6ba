#include "uidata.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

UIData select(int family, int mode)
{
    return {static_cast<UIMode>(mode), static_cast<DataModelIds::tagValueEnum>(family),
            Workflow::Standard};
}

void collectFeatures(const UIDataList<UIMoleculeData>& molecules, std::vector<int>& features)
{
    for (const auto& molecule : molecules) {
        features.push_back(molecule->getFeature());
        collectFeatures(molecule->getChildren(), features);
    }
}

/// What an interface shows, in order: enough to tell two of them apart.
std::vector<int> featuresOf(const UIData& data)
{
    std::vector<int> features;
    for (const auto* containers : {&data.getTabs(), &data.getDialogs()}) {
        for (const auto& container : *containers) {
            for (const auto& column : container->getColumns())
                collectFeatures(column->getMolecules(), features);
        }
    }
    return features;
}

struct Selection
{
    int family;
    std::size_t tabs[4];    // by mode 1 to 4
    std::size_t dialogs[4]; // by mode 1 to 4
};

constexpr Selection kSelections[] = {
    {8430, {7, 4, 0, 7}, {2, 2, 2, 2}}, {8431, {7, 4, 0, 7}, {2, 2, 2, 2}},
    {8432, {5, 2, 0, 5}, {2, 2, 2, 2}}, {8433, {5, 1, 0, 5}, {1, 1, 1, 1}},
    {8434, {6, 2, 0, 6}, {2, 2, 2, 2}},
};

TEST(UIData, EveryKnownPairSelectsAnInterfaceOfItsOwn)
{
    std::set<std::vector<int>> seen;
    for (const Selection& selection : kSelections) {
        for (int mode = 1; mode <= 4; ++mode) {
            SCOPED_TRACE(std::to_string(selection.family) + " mode " + std::to_string(mode));
            const UIData data = select(selection.family, mode);
            EXPECT_EQ(data.getTabs().size(), selection.tabs[mode - 1]);
            EXPECT_EQ(data.getDialogs().size(), selection.dialogs[mode - 1]);
            EXPECT_FALSE(data.isEmpty());
            EXPECT_NE(data.getCaption(), 0U);
            // What an administrator sets for everybody is what a person sets.
            if (mode != 4) {
                EXPECT_TRUE(seen.insert(featuresOf(data)).second) << "like another one";
            }
        }
    }
}

TEST(UIData, UnknownPairIsEmpty)
{
    constexpr int kPairs[][2] = {{8430, 0}, {8430, 5}, {8430, -1}, {8429, 1},
                                 {8435, 1}, {1, 1},    {5001, 1},  {8434, 72}};
    for (const auto& [family, mode] : kPairs) {
        const UIData data = select(family, mode);
        EXPECT_TRUE(data.isEmpty() && data.getTabs().empty() && data.getDialogs().empty() &&
                    data.findDialog(DialogId::QuickSettings) == nullptr && data.getCaption() == 0)
            << family << ' ' << mode;
    }
}

TEST(UIData, DialogsAreFoundByNumber)
{
    const UIData data = select(8430, 3);
    ASSERT_NE(data.findDialog(DialogId::QuickSettings), nullptr);
    EXPECT_EQ(data.findDialog(DialogId::QuickSettings)->getId(), 103u);
    EXPECT_EQ(data.findDialog(DialogId::QuickSettings)->getDialogActions().size(), 2u);
    ASSERT_NE(data.findDialog(DialogId::JobTrackingOff), nullptr);
    EXPECT_EQ(data.findDialog(static_cast<DialogId>(44)), nullptr);
    // Page 1 of another mode has the number 1, which must not pass for a dialog.
    EXPECT_EQ(select(8430, 1).findDialog(static_cast<DialogId>(1)), nullptr);
}

// A page with an empty column and a column that holds a nested page.
constexpr UIContainerRecord kInner{.id = 50};
constexpr UIControlRecord kControls[] = {
    {.kind = UIControlKind::Text, .feature = DataModelIds::tagFeatureEnum{3001}, .label = 9},
    {.kind = UIControlKind::BitmapButton},
    {.kind = UIControlKind::Combo, .feature = DataModelIds::tagFeatureEnum{3002}},
};
constexpr UIMoleculeRecord kParts[] = {
    {.kind = UIMoleculeKind::ComboBox, .controls = kControls, .featureState = 1},
    {.kind = UIMoleculeKind::Text, .featureState = -1},
};
constexpr UIMoleculeRecord kMolecules[] = {
    {.kind = UIMoleculeKind::Container, .nested = &kInner},
    {.kind = UIMoleculeKind::GroupBox, .children = kParts, .nested = &kInner, .title = 7},
    {.kind = UIMoleculeKind::Container},
};
constexpr UIColumnRecord kColumns[] = {{.x = 7, .width = 10}, {.x = 20, .molecules = kMolecules}};
constexpr UIContainerRecord kTab{.id = 3, .columns = kColumns};

TEST(UIContainerData, NestedPageExistsInFourModesOnly)
{
    for (const std::uint32_t mode : {0u, 1u, 2u, 3u, 4u, 5u, 71u, 72u, 73u, 0xFFFFFFFFu}) {
        const UIContainerData tab(kTab, mode);
        const auto& molecules = tab.getColumns().at(1)->getMolecules();
        const bool expected = (mode >= 2 && mode <= 4) || mode == 72;
        EXPECT_EQ(molecules.at(0)->getNestedContainer() != nullptr, expected) << mode;
        EXPECT_EQ(molecules.at(1)->getNestedContainer(), nullptr) << "only a Container nests";
        EXPECT_EQ(molecules.at(2)->getNestedContainer(), nullptr) << "it has no page to nest";
    }
}

TEST(UIContainerData, BindsToTheFirstFeatureBehindTheLabel)
{
    const UIContainerData tab(kTab, 1);
    const UIMoleculeData& group = *tab.getColumns().at(1)->getMolecules().at(1);
    EXPECT_EQ(group.getFeature(), DataModelIds::kNoFeature);
    const UIMoleculeData& combo = *group.getChildren().at(0);
    EXPECT_EQ(combo.getFeature(), 3002) << "the label's feature does not bind";
    EXPECT_TRUE(combo.hasFeatureState());
    EXPECT_FALSE(group.getChildren().at(1)->hasFeatureState()) << "a negative flag is no state";
}

TEST(UIData, KeepsTheOrderOfItsTabsAndHandsTheModeDown)
{
    std::vector<UIContainerRecord> tabs(16, kTab);
    for (std::uint32_t i = 0; i < 16; ++i)
        tabs[i].id = 100 + i;
    UIRootRecord root{.caption = 11};
    root.tabs.first = tabs.data();
    root.tabs.count = tabs.size();
    const UIData data(root, UIMode::DeviceSettings, Workflow::Standard);
    ASSERT_EQ(data.getTabs().size(), 16u);
    for (std::uint32_t i = 0; i < 16; ++i)
        EXPECT_EQ(data.getTabs()[i]->getId(), 100 + i);
    EXPECT_NE(data.getTabs()[15]->getColumns()[1]->getMolecules()[0]->getNestedContainer(),
              nullptr);
}

} // namespace
