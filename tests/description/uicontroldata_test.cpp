#include "uicontroldata.h"

#include <gtest/gtest.h>

#include <typeinfo>

#include "uibitmapbuttoncontroldata.h"
#include "uicheckcontroldata.h"
#include "uidimensionspincontroldata.h"
#include "uiimagecontroldata.h"
#include "uitvnodecontroldata.h"

namespace {

constexpr DataModelIds::tagValueEnum kOn{5001};
constexpr DataModelIds::tagValueEnum kOff{5002};

/// The description of a control with that extra record, as its own class.
template <class Data>
const Data& describe(std::unique_ptr<UIControlData>& owner, const UIControlRecord& record)
{
    owner = UIControlData::create(record);
    return dynamic_cast<const Data&>(*owner);
}

TEST(UIControlData, UnknownKindsArePlain)
{
    for (const std::uint32_t kind : {0u, 23u, 26u}) {
        const UIControlRecord record{.kind = static_cast<UIControlKind>(kind)};
        const auto control = UIControlData::create(record);
        const UIControlData& created = *control;
        EXPECT_TRUE(typeid(created) == typeid(UIControlData)) << kind;
    }
}

TEST(UIControlData, MissingOrForeignExtraRecordMeansDefaults)
{
    static constexpr UISliderRecord kSlider{.pageSize = 99};
    const UIControlRecord records[] = {
        {.kind = UIControlKind::Check},
        {.kind = UIControlKind::Check, .extra = &kSlider},
        {.kind = UIControlKind::Check, .extra = static_cast<const UICheckRecord*>(nullptr)},
    };
    for (const UIControlRecord& record : records) {
        std::unique_ptr<UIControlData> owner;
        const auto& check = describe<UICheckControlData>(owner, record);
        EXPECT_TRUE(check.isBoolean());
        EXPECT_FALSE(check.isThreeState() || check.secondTextToggles());
    }
}

TEST(UIControlData, PicturesFallBackToTheCommonOne)
{
    std::unique_ptr<UIControlData> owner;
    static constexpr UIOptionRecord kPictures[] = {{.value = kOn, .image = 31}, {.value = kOff}};
    static constexpr UIImageRecord kImage{.image = 30, .valueImages = kPictures};
    const auto& image =
        describe<UIImageControlData>(owner, {.kind = UIControlKind::Image, .extra = &kImage});
    EXPECT_EQ(image.getImage(kOn), 31u);
    EXPECT_EQ(image.getImage(kOff), 0u) << "listed without a picture";
    EXPECT_EQ(image.getImage(DataModelIds::kNoValue), 30u) << "not listed";

    static constexpr UIBitmapButtonRecord kButton{.bitmap = 50};
    const auto& button = describe<UIBitmapButtonControlData>(
        owner, {.kind = UIControlKind::BitmapButton, .extra = &kButton});
    EXPECT_EQ(button.getDisabledBitmap(), 50u) << "the normal one serves for both";
}

TEST(UISpinControlData, DimensionsFollowTheUnitsAndNumbersDoNot)
{
    static constexpr UISpinRecord kNumber{.increment = 10, .unitLabel = 7};
    static constexpr UIDimensionSpinRecord kLength{.metricIncrement = 5,
                                                   .metricDigits = 1,
                                                   .metricUnitLabel = 8,
                                                   .inchIncrement = 2,
                                                   .inchDigits = 3,
                                                   .inchUnitLabel = 9};
    std::unique_ptr<UIControlData> owner;
    const auto shown = [&](const UIControlRecord& record, bool metric) {
        const auto& spin = describe<UISpinControlData>(owner, record);
        return std::tuple(spin.getIncrement(metric), spin.getDigits(metric),
                          spin.getUnitLabel(metric));
    };
    const UIControlRecord number{.kind = UIControlKind::Spin, .extra = &kNumber};
    const UIControlRecord length{.kind = UIControlKind::DimensionSpin, .extra = &kLength};
    EXPECT_EQ(shown(number, true), std::tuple(10, 0, 7u));
    EXPECT_EQ(shown(number, false), std::tuple(10, 0, 7u));
    EXPECT_EQ(shown(length, true), std::tuple(5, 1, 8u));
    EXPECT_EQ(shown(length, false), std::tuple(2, 3, 9u));
}

TEST(UITvControlData, NodesOwnTheirItemsAndUnknownKindsArePlain)
{
    static constexpr UITvControlRecord kItems[] = {{.kind = UITvControlKind::Node},
                                                   {.kind = static_cast<UITvControlKind>(9)}};
    static constexpr UITvControlRecord kNode{.label = 3, .children = kItems};
    const auto created = UITvControlData::create(kNode);
    const auto& node = dynamic_cast<const UITvNodeControlData&>(*created);
    ASSERT_EQ(node.getChildren().size(), 2u);
    const UITvControlData& bare = *node.getChildren()[1];
    EXPECT_TRUE(typeid(bare) == typeid(UITvControlData));
}

} // namespace
