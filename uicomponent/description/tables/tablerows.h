// The words in which the tables of this folder are written: one call makes one row.
#pragma once

#include "productids.h"
#include "uibuttonaction.h"
#include "uirecords.h"
#include "uistringnumbers.h"

namespace o7 {

// A page for two full columns: 155 each with a gap of 6 between margins of 7, or one of 316. Wide
// enough for seven tabs in one row, and high enough for seven settings in each column.
inline constexpr std::int32_t kPageWidth = 330;
inline constexpr std::int32_t kPageHeight = 218;
inline constexpr std::int32_t kDevicePageHeight = 200; // device settings are fewer
inline constexpr std::int32_t kMargin = 7;
inline constexpr std::int32_t kColumnWidth = 155;
inline constexpr std::int32_t kSecondColumnX = 168;
inline constexpr std::int32_t kWideColumnWidth = 316;

// Room for the label beside a narrow box (spin, length, number, PIN) and beside a slider. The boxes
// of lists and texts need all of the width, so their labels stand above.
inline constexpr std::int32_t kNarrowBoxLabel = 62;
inline constexpr std::int32_t kSliderLabel = 50;

namespace rows {

template <tagFeatureEnum Feature, std::uint32_t Label>
inline constexpr UIControlRecord kComboControls[] = {
    {.kind = UIControlKind::Text, .feature = Feature, .label = Label},
    {.kind = UIControlKind::Combo, .feature = Feature},
};

template <tagFeatureEnum Feature, std::uint32_t Label>
inline constexpr UIControlRecord kCheckControls[] = {
    {.kind = UIControlKind::Check, .feature = Feature, .label = Label},
};

template <tagValueEnum Checked, tagValueEnum Unchecked>
inline constexpr UICheckRecord kOptionCheck{.checkedValue = Checked, .uncheckedValue = Unchecked};

template <tagFeatureEnum Feature, std::uint32_t Label, tagValueEnum Checked, tagValueEnum Unchecked>
inline constexpr UIControlRecord kOptionCheckControls[] = {
    {.kind = UIControlKind::Check,
     .feature = Feature,
     .label = Label,
     .extra = &kOptionCheck<Checked, Unchecked>},
};

template <std::uint32_t Lines> inline constexpr UITextRecord kTextLines{.lines = Lines};

template <std::uint32_t Text, std::uint32_t Lines>
inline constexpr UIControlRecord kTextControls[] = {
    {.kind = UIControlKind::Text, .label = Text, .extra = &kTextLines<Lines>},
};

/// A label and a box of another kind than a list, told more about by an extra record.
template <UIControlKind Kind, tagFeatureEnum Feature, std::uint32_t Label, auto* Extra>
inline constexpr UIControlRecord kBoxControls[] = {
    {.kind = UIControlKind::Text, .feature = Feature, .label = Label},
    {.kind = Kind, .feature = Feature, .extra = Extra},
};

template <std::uint32_t Unit> inline constexpr UISpinRecord kUnitSpin{.unitLabel = Unit};

/// Steps of 1 mm and 0.05 inch; of 0.5 mm with one digit, of 0.05 mm with two.
template <int Digits>
inline constexpr UIDimensionSpinRecord kLengthSpin{.metricIncrement = Digits == 0 ? 1 : 5,
                                                   .metricDigits = Digits,
                                                   .inchIncrement = Digits == 0 ? 5 : 1,
                                                   .inchDigits = Digits > 1 ? 3 : 2};
template <std::uint32_t Low, std::uint32_t High, int Step>
inline constexpr UISliderRecord kEndsSlider{
    .tickFrequency = Step, .pageSize = Step, .lowLabel = Low, .highLabel = High};
template <std::uint32_t Limit, std::uint32_t Lines>
inline constexpr UIEditRecord kLimitEdit{.limit = Limit, .lines = Lines};
template <std::uint32_t Limit>
inline constexpr UIEditRecord kPinEdit{
    .limit = Limit, .width = 45, .digitsOnly = true, .password = true};
inline constexpr UIEditRecord kNumberEdit{.limit = 11, .width = 45, .digitsOnly = true};
template <std::uint32_t Rows> inline constexpr UIListRecord kOptionList{.visibleRows = Rows};
inline constexpr UIRadioRecord kOptionRadio{};
template <tagValueEnum Value> inline constexpr UIRadioRecord kValueRadio{.value = Value};

template <tagFeatureEnum Switch, tagFeatureEnum Range, std::uint32_t Label, std::uint32_t From,
          std::uint32_t To>
inline constexpr UIControlRecord kRangeControls[] = {
    {.kind = UIControlKind::Check, .feature = Switch, .label = Label},
    {.kind = UIControlKind::Text, .feature = Range, .label = From},
    {.kind = UIControlKind::Spin, .feature = Range},
    {.kind = UIControlKind::Text, .feature = Range, .label = To},
    {.kind = UIControlKind::Spin, .feature = Range},
};

} // namespace rows

/// One radio button of a group: the value that it chooses, and its own label.
template <tagFeatureEnum Feature, tagValueEnum Value, std::uint32_t Label>
inline constexpr UIControlRecord kRadio{.kind = UIControlKind::Radio,
                                        .feature = Feature,
                                        .label = Label,
                                        .extra = &rows::kValueRadio<Value>};

/// A whole number with arrows, and the text of its unit behind the box.
template <tagFeatureEnum Feature, std::uint32_t Label, std::uint32_t Unit = 0>
constexpr UIMoleculeRecord spin()
{
    return {.kind = UIMoleculeKind::Spin,
            .controls =
                rows::kBoxControls<UIControlKind::Spin, Feature, Label, &rows::kUnitSpin<Unit>>,
            .featureState = 1,
            .labelWidth = kNarrowBoxLabel};
}

/// A length with arrows, in the units that the person works in. Digits: behind the separator of
/// millimetres.
template <tagFeatureEnum Feature, std::uint32_t Label, int Digits = 0>
constexpr UIMoleculeRecord length()
{
    return {.kind = UIMoleculeKind::DimensionSpin,
            .controls = rows::kBoxControls<UIControlKind::DimensionSpin, Feature, Label,
                                           &rows::kLengthSpin<Digits>>,
            .featureState = 1,
            .labelWidth = kNarrowBoxLabel};
}

/// A slider over a whole number, with texts under its ends. Step: between two ticks, and of the
/// Page keys.
template <tagFeatureEnum Feature, std::uint32_t Label, std::uint32_t Low, std::uint32_t High,
          int Step = 10>
constexpr UIMoleculeRecord slider()
{
    return {.kind = UIMoleculeKind::Slider,
            .controls = rows::kBoxControls<UIControlKind::Slider, Feature, Label,
                                           &rows::kEndsSlider<Low, High, Step>>,
            .featureState = 1,
            .labelWidth = kSliderLabel};
}

/// A field for a text of so many characters.
template <tagFeatureEnum Feature, std::uint32_t Label, std::uint32_t Limit = 255,
          std::uint32_t Lines = 1>
constexpr UIMoleculeRecord edit()
{
    return {.kind = UIMoleculeKind::Edit,
            .controls = rows::kBoxControls<UIControlKind::Edit, Feature, Label,
                                           &rows::kLimitEdit<Limit, Lines>>,
            .featureState = 1};
}

/// A field for a secret number of so many digits.
template <tagFeatureEnum Feature, std::uint32_t Label, std::uint32_t Limit>
constexpr UIMoleculeRecord pin()
{
    return {.kind = UIMoleculeKind::Edit,
            .controls =
                rows::kBoxControls<UIControlKind::Edit, Feature, Label, &rows::kPinEdit<Limit>>,
            .featureState = 1,
            .labelWidth = kNarrowBoxLabel};
}

/// A field for a whole number, without arrows.
template <tagFeatureEnum Feature, std::uint32_t Label> constexpr UIMoleculeRecord number()
{
    return {.kind = UIMoleculeKind::Edit,
            .controls = rows::kBoxControls<UIControlKind::Edit, Feature, Label, &rows::kNumberEdit>,
            .featureState = 1,
            .labelWidth = kNarrowBoxLabel};
}

/// A range of whole numbers behind a check box that switches it on.
template <tagFeatureEnum Switch, tagFeatureEnum Range, std::uint32_t Label, std::uint32_t From,
          std::uint32_t To>
constexpr UIMoleculeRecord range()
{
    return {.kind = UIMoleculeKind::RangeOfInteger,
            .controls = rows::kRangeControls<Switch, Range, Label, From, To>,
            .featureState = 1};
}

/// An open list of the options with room for so many, and its label.
template <tagFeatureEnum Feature, std::uint32_t Label, std::uint32_t Rows = 5>
constexpr UIMoleculeRecord pickOne()
{
    return {.kind = UIMoleculeKind::PickOne,
            .controls =
                rows::kBoxControls<UIControlKind::List, Feature, Label, &rows::kOptionList<Rows>>,
            .featureState = 1};
}

/// One radio button for each option that the product has, under a heading.
template <tagFeatureEnum Feature, std::uint32_t Label> constexpr UIMoleculeRecord pickOneRadio()
{
    return {.kind = UIMoleculeKind::PickOneRadio,
            .controls =
                rows::kBoxControls<UIControlKind::Radio, Feature, Label, &rows::kOptionRadio>,
            .featureState = 1};
}

/// Radio buttons for the values that its controls name.
constexpr UIMoleculeRecord radioButtons(UIRecords<UIControlRecord> controls)
{
    return {.kind = UIMoleculeKind::RadioButtons, .controls = controls, .featureState = 1};
}

/// A closed list with its label.
template <tagFeatureEnum Feature, std::uint32_t Label> constexpr UIMoleculeRecord combo()
{
    return {.kind = UIMoleculeKind::ComboBox,
            .controls = rows::kComboControls<Feature, Label>,
            .featureState = 1};
}

/// A check box for a boolean feature.
template <tagFeatureEnum Feature, std::uint32_t Label> constexpr UIMoleculeRecord check()
{
    return {.kind = UIMoleculeKind::CheckBox,
            .controls = rows::kCheckControls<Feature, Label>,
            .featureState = 1};
}

/// A check box for two values of an option feature.
template <tagFeatureEnum Feature, std::uint32_t Label, tagValueEnum Checked, tagValueEnum Unchecked>
constexpr UIMoleculeRecord check()
{
    return {.kind = UIMoleculeKind::CheckBox,
            .controls = rows::kOptionCheckControls<Feature, Label, Checked, Unchecked>,
            .featureState = 1};
}

/// A paragraph of explanation with room for that many lines.
template <std::uint32_t Text, std::uint32_t Lines> constexpr UIMoleculeRecord text()
{
    return {.kind = UIMoleculeKind::Text, .controls = rows::kTextControls<Text, Lines>};
}

/// A frame around molecules.
constexpr UIMoleculeRecord group(std::uint32_t title, UIRecords<UIMoleculeRecord> children)
{
    return {.kind = UIMoleculeKind::GroupBox, .children = children, .title = title};
}

constexpr UIColumnRecord left(UIRecords<UIMoleculeRecord> molecules)
{
    return {.x = kMargin, .width = kColumnWidth, .molecules = molecules};
}

constexpr UIColumnRecord right(UIRecords<UIMoleculeRecord> molecules)
{
    return {.x = kSecondColumnX, .width = kColumnWidth, .molecules = molecules};
}

/// One column over the whole width, with labels beside their boxes.
constexpr UIColumnRecord wide(UIRecords<UIMoleculeRecord> molecules)
{
    return {.x = kMargin, .width = kWideColumnWidth, .labelWidth = 70, .molecules = molecules};
}

constexpr UIContainerRecord page(std::uint32_t id, std::uint32_t title,
                                 UIRecords<UIColumnRecord> columns)
{
    return {
        .id = id, .title = title, .width = kPageWidth, .height = kPageHeight, .columns = columns};
}

constexpr UIContainerRecord devicePage(std::uint32_t id, std::uint32_t title,
                                       UIRecords<UIColumnRecord> columns)
{
    return {.id = id,
            .title = title,
            .width = kPageWidth,
            .height = kDevicePageHeight,
            .columns = columns};
}

constexpr UIContainerRecord dialog(DialogId id, std::uint32_t title, std::int32_t height,
                                   UIRecords<UIColumnRecord> columns,
                                   UIRecords<UIDialogActionRecord> actions)
{
    return {.id = static_cast<std::uint32_t>(id),
            .title = title,
            .width = kPageWidth,
            .height = height,
            .columns = columns,
            .dialogActions = actions};
}

/// A page of job options, with the features that belong to it although no control shows them.
constexpr UIContainerRecord jobPage(std::uint32_t id, UIRecords<UIColumnRecord> columns,
                                    UIRecords<UISimpleFeatureRecord> features)
{
    return {.id = id,
            .title = O7STR_TAB_JOB,
            .width = kPageWidth,
            .height = kPageHeight,
            .columns = columns,
            .simpleFeatures = features};
}

inline constexpr UIDialogActionRecord kOkCancel[] = {
    {.kind = UIDialogActionKind::Accept, .label = O7STR_OK, .isDefault = true},
    {.kind = UIDialogActionKind::Cancel, .label = O7STR_CANCEL},
};
inline constexpr UIDialogActionRecord kOkOnly[] = {
    {.kind = UIDialogActionKind::Accept, .label = O7STR_OK, .isDefault = true},
};

/// The compact dialog.
constexpr UIContainerRecord quick(std::int32_t height, UIRecords<UIColumnRecord> columns)
{
    return dialog(DialogId::QuickSettings, O7STR_DIALOG_QUICK, height, columns, kOkCancel);
}

// The area under the pages of every sheet, without the margins of a page: how the settings stand,
// and the defaults of the page that is shown.
inline constexpr std::int32_t kDefaultsWidth = 100;
inline constexpr UIMoleculeRecord kStatusRows[] = {{.kind = UIMoleculeKind::Status}};
inline constexpr UIButtonRecord kDefaultsButton{.action = kActionPageDefaults};
inline constexpr UIControlRecord kDefaultsControls[] = {
    {.kind = UIControlKind::Button, .label = O7STR_L_PAGE_DEFAULTS, .extra = &kDefaultsButton}};
inline constexpr UIMoleculeRecord kDefaultsRows[] = {
    {.kind = UIMoleculeKind::Button, .controls = kDefaultsControls}};
inline constexpr UIColumnRecord kStatusColumns[] = {
    {.x = kMargin, .width = kWideColumnWidth - kDefaultsWidth - 4, .molecules = kStatusRows},
    {.x = kMargin + kWideColumnWidth - kDefaultsWidth,
     .width = kDefaultsWidth,
     .molecules = kDefaultsRows}};
inline constexpr UIContainerRecord kStatusArea[] = {
    {.id = 1, .width = kPageWidth, .height = 14 + 2 * kMargin, .columns = kStatusColumns}};

// The four interfaces of a family. Every one can open the family's dialogs.
constexpr UIRootRecord root(tagValueEnum family, UIMode mode, std::uint32_t caption,
                            UIRecords<UIContainerRecord> tabs, UIRecords<UIContainerRecord> dialogs)
{
    return {.family = family,
            .mode = mode,
            .caption = caption,
            .tabs = tabs,
            .dialogs = dialogs,
            .offTabs = tabs.size() ? UIRecords<UIContainerRecord>(kStatusArea)
                                   : UIRecords<UIContainerRecord>()};
}

constexpr UIRootRecord preferences(tagValueEnum family, UIRecords<UIContainerRecord> tabs,
                                   UIRecords<UIContainerRecord> dialogs)
{
    return root(family, UIMode::PrintingPreferences, O7STR_CAPTION_PREFERENCES, tabs, dialogs);
}

constexpr UIRootRecord deviceSettings(tagValueEnum family, UIRecords<UIContainerRecord> tabs,
                                      UIRecords<UIContainerRecord> dialogs)
{
    return root(family, UIMode::DeviceSettings, O7STR_CAPTION_DEVICE, tabs, dialogs);
}

constexpr UIRootRecord compact(tagValueEnum family, UIRecords<UIContainerRecord> dialogs)
{
    return root(family, UIMode::CompactDialog, O7STR_DIALOG_QUICK, {}, dialogs);
}

constexpr UIRootRecord defaults(tagValueEnum family, UIRecords<UIContainerRecord> tabs,
                                UIRecords<UIContainerRecord> dialogs)
{
    return root(family, UIMode::PrintingDefaults, O7STR_CAPTION_DEFAULTS, tabs, dialogs);
}

} // namespace o7
