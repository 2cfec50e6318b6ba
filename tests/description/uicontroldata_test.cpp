#include "uicontroldata.h"

#include <gtest/gtest.h>

#include <typeindex>

#include "uibitmapbuttoncontroldata.h"
#include "uibuttoncontroldata.h"
#include "uicheckcontroldata.h"
#include "uicombocontroldata.h"
#include "uidimensionspincontroldata.h"
#include "uieditablelistcontroldata.h"
#include "uieditcontroldata.h"
#include "uigroupboxcontroldata.h"
#include "uihyperlinktextcontroldata.h"
#include "uiimagecontroldata.h"
#include "uijobnotesprefcontroldata.h"
#include "uilistcontroldata.h"
#include "uilistviewcontroldata.h"
#include "uimenucontroldata.h"
#include "uimrucontroldata.h"
#include "uinondatamodellistcontroldata.h"
#include "uiradioimagecontroldata.h"
#include "uiradiopushcontroldata.h"
#include "uislidercontroldata.h"
#include "uisummarycontroldata.h"
#include "uitextcontroldata.h"
#include "uitreeviewcontroldata.h"
#include "uitvbuttoncontroldata.h"
#include "uitvcombocontroldata.h"
#include "uitveditcontroldata.h"
#include "uitvnodecontroldata.h"
#include "uitvspincontroldata.h"

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

TEST(UIControlData, KindSelectsTheClass)
{
    const std::type_index classes[] = {
        typeid(UIControlData), // 0: no such kind
        typeid(UITextControlData),
        typeid(UIHyperlinkTextControlData),
        typeid(UIEditControlData),
        typeid(UIComboControlData),
        typeid(UIListControlData),
        typeid(UICheckControlData),
        typeid(UIRadioControlData),
        typeid(UIRadioPushControlData),
        typeid(UIRadioImageControlData),
        typeid(UISpinControlData),
        typeid(UIDimensionSpinControlData),
        typeid(UIBitmapButtonControlData),
        typeid(UISliderControlData),
        typeid(UIGroupBoxControlData),
        typeid(UIButtonControlData),
        typeid(UIImageControlData),
        typeid(UISummaryControlData),
        typeid(UIMenuControlData),
        typeid(UIListViewControlData),
        typeid(UIEditableListControlData),
        typeid(UIJobNotesPrefControlData),
        typeid(UINonDataModelListControlData),
        typeid(UIControlData), // 23: plain
        typeid(UIMRUControlData),
        typeid(UITreeViewControlData),
        typeid(UIControlData), // 26: no such kind
    };
    std::uint32_t kind = 0;
    for (const std::type_index& expected : classes) {
        const UIControlRecord record{
            .kind = static_cast<UIControlKind>(kind), .label = kind, .style = 0x80};
        const auto control = UIControlData::create(record);
        const UIControlData& created = *control;
        EXPECT_EQ(std::type_index(typeid(created)), expected) << kind;
        EXPECT_EQ(&created.getRecord(), &record);
        EXPECT_EQ(created.getLabel(), kind);
        EXPECT_EQ(created.getStyle(), 0x80u);
        ++kind;
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

TEST(UIControlData, ExtraRecordsAreRead)
{
    std::unique_ptr<UIControlData> owner;

    static constexpr UICheckRecord kCheck{.checkedValue = kOn, .uncheckedValue = kOff};
    const auto& check =
        describe<UICheckControlData>(owner, {.kind = UIControlKind::Check, .extra = &kCheck});
    EXPECT_FALSE(check.isBoolean());
    EXPECT_EQ(check.getUncheckedValue(), kOff);

    static constexpr UIOptionRecord kPictures[] = {{.value = kOn, .image = 31}, {.value = kOff}};
    static constexpr UIImageRecord kImage{
        .minimumHeight = 24, .image = 30, .valueImages = kPictures};
    const auto& image =
        describe<UIImageControlData>(owner, {.kind = UIControlKind::Image, .extra = &kImage});
    EXPECT_EQ(image.getMinimumHeight(), 24u);
    EXPECT_EQ(image.getImage(kOn), 31u);
    EXPECT_EQ(image.getImage(kOff), 0u) << "listed without a picture";
    EXPECT_EQ(image.getImage(DataModelIds::kNoValue), 30u) << "not listed";

    static constexpr UIRadioRecord kRadio{.value = kOn, .image = 40, .selectedImage = 41};
    const auto& radio = describe<UIRadioImageControlData>(
        owner, {.kind = UIControlKind::RadioImage, .extra = &kRadio});
    EXPECT_EQ(radio.getValue(), kOn);
    EXPECT_EQ(radio.getImage(true), 41u);
    EXPECT_EQ(radio.getImage(false), 40u);

    static constexpr UIBitmapButtonRecord kButton{.bitmap = 50};
    const auto& button = describe<UIBitmapButtonControlData>(
        owner, {.kind = UIControlKind::BitmapButton, .extra = &kButton});
    EXPECT_EQ(button.getDisabledBitmap(), 50u) << "the normal one serves for both";

    static constexpr UIListViewColumnRecord kColumns[] = {{.title = 1}, {.title = 2, .width = 70}};
    static constexpr UIListViewRecord kList{.columns = kColumns};
    const auto& list =
        describe<UIListViewControlData>(owner, {.kind = UIControlKind::ListView, .extra = &kList});
    ASSERT_EQ(list.getColumns().size(), 2u);
    EXPECT_EQ(list.getColumns()[1]->getWidth(), 70u);
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
    struct Row
    {
        UIControlRecord record;
        bool metric = false;
        std::int32_t increment = 0;
        std::int32_t digits = 0;
        std::uint32_t unit = 0;
    };
    const UIControlRecord number{.kind = UIControlKind::Spin, .extra = &kNumber};
    const UIControlRecord length{.kind = UIControlKind::DimensionSpin, .extra = &kLength};
    const Row rows[] = {
        {number, true, 10, 0, 7},
        {number, false, 10, 0, 7},
        {length, true, 5, 1, 8},
        {length, false, 2, 3, 9},
    };
    for (const Row& row : rows) {
        std::unique_ptr<UIControlData> owner;
        const auto& spin = describe<UISpinControlData>(owner, row.record);
        EXPECT_EQ(spin.getIncrement(row.metric), row.increment);
        EXPECT_EQ(spin.getDigits(row.metric), row.digits);
        EXPECT_EQ(spin.getUnitLabel(row.metric), row.unit);
    }
}

TEST(UITvControlData, KindSelectsTheClassAndNodesOwnTheirItems)
{
    static constexpr UITvControlRecord kItems[] = {
        {.kind = UITvControlKind::Combo, .feature = DataModelIds::tagFeatureEnum{3001}},
        {.kind = UITvControlKind::Spin},
        {.kind = UITvControlKind::Edit, .limit = 12},
        {.kind = UITvControlKind::Button, .action = 14, .dialog = DialogId::QuickSettings},
        {.kind = static_cast<UITvControlKind>(9)},
    };
    static constexpr UITvControlRecord kNode{.label = 3, .children = kItems};
    const auto created = UITvControlData::create(kNode);
    const auto& node = dynamic_cast<const UITvNodeControlData&>(*created);
    ASSERT_EQ(node.getChildren().size(), 5u);
    const auto item = [&](std::size_t i) { return node.getChildren()[i].get(); };
    EXPECT_TRUE(dynamic_cast<const UITvComboControlData&>(*item(0)).showsValue());
    EXPECT_EQ(dynamic_cast<const UITvSpinControlData&>(*item(1)).getIncrement(), 1u);
    EXPECT_EQ(dynamic_cast<const UITvEditControlData&>(*item(2)).getLimit(), 12u);
    EXPECT_EQ(dynamic_cast<const UITvButtonControlData&>(*item(3)).getAction(), 14u);
    const UITvControlData& bare = *item(4);
    EXPECT_EQ(std::type_index(typeid(bare)), std::type_index(typeid(UITvControlData)));
}

} // namespace
