// What a control record says beyond kind, feature, label and style. One record type for each group
// of kinds that needs one; a control record names at most one of them, and a control without one
// behaves as if it named a record of defaults. Lengths are in dialog units.
#pragma once

#include <cstdint>
#include <variant>

#include "datamodelids.h"
#include "dialogid.h"
#include "uikinds.h"
#include "uimenurecords.h"
#include "uirecordlist.h"

/// What one value of an option feature looks like where its display string is not enough.
struct UIOptionRecord
{
    DataModelIds::tagValueEnum value = DataModelIds::kNoValue;
    std::uint32_t label = 0; ///< String number; 0: the model's display string.
    std::uint32_t image = 0; ///< Picture resource number; 0: none.

    /// What stands for the values of a boolean feature, which have no numbers.
    static constexpr DataModelIds::tagValueEnum valueOf(bool value)
    {
        return static_cast<DataModelIds::tagValueEnum>(value);
    }
};

struct UITextRecord
{
    std::uint32_t lines = 1; ///< Lines of room; each is 8 high.
    bool bold = false;
};

struct UIHyperlinkTextRecord
{
    std::uint32_t linkNumber = 0; ///< Number of the link in the product's URL file.
};

struct UIEditRecord
{
    std::uint32_t limit = 255; ///< Most characters that can be typed.
    std::uint32_t width = 0;   ///< 0: as wide as its column.
    std::uint32_t lines = 1;
    bool digitsOnly = false;
    bool password = false;
};

struct UIComboRecord
{
    std::uint32_t minimumHeight = 0;
    UIDisabledOptions disabledOptions = UIDisabledOptions::Grey;
};

struct UIListRecord
{
    std::uint32_t visibleRows = 5;
    UIDisabledOptions disabledOptions = UIDisabledOptions::Grey;
};

/// The two values of a check box that is bound to an option feature. Both absent (value 1): the
/// box is bound to a boolean feature.
struct UICheckRecord
{
    DataModelIds::tagValueEnum checkedValue = DataModelIds::kNoValue;
    DataModelIds::tagValueEnum uncheckedValue = DataModelIds::kNoValue;
    bool threeState = false;
    bool secondTextToggles = false; ///< A click on the second text is a click on the box.
};

struct UIRadioRecord
{
    DataModelIds::tagValueEnum value = DataModelIds::kNoValue; ///< Value that the button chooses.
    std::uint32_t image = 0;         ///< Picture resource number (kinds RadioPush and RadioImage).
    std::uint32_t selectedImage = 0; ///< Picture while chosen; 0: the same.
};

struct UISpinRecord
{
    std::int32_t increment = 1;
    std::uint32_t unitLabel = 0; ///< String number of the text behind the box; 0: none.
};

/// Steps are counted in the last digit shown: 5 with one digit is half a millimetre.
struct UIDimensionSpinRecord
{
    std::int32_t metricIncrement = 1;
    std::int32_t metricDigits = 0;
    std::uint32_t metricUnitLabel = 0;
    std::int32_t inchIncrement = 5;
    std::int32_t inchDigits = 2;
    std::uint32_t inchUnitLabel = 0;
};

struct UISliderRecord
{
    std::int32_t tickFrequency = 1;
    std::int32_t pageSize = 5;
    std::uint32_t lowLabel = 0;  ///< String number of the text under the low end.
    std::uint32_t highLabel = 0; ///< String number of the text under the high end.
};

/// A push button reports a button action, opens a dialog, or both.
struct UIButtonRecord
{
    std::uint32_t action = 0; ///< Button action number; 0: none.
    DialogId dialog{};        ///< 0: none.
    bool isDefault = false;
};

struct UIBitmapButtonRecord
{
    std::uint32_t bitmap = 0;         ///< Bitmap resource number.
    std::uint32_t disabledBitmap = 0; ///< Bitmap while disabled; 0: the same.
    std::uint32_t action = 0;
    DialogId dialog{};
};

/// A picture that may mirror a feature: it shows the picture listed for the feature's value.
struct UIImageRecord
{
    std::uint32_t minimumHeight = 0;
    std::uint32_t image = 0; ///< Picture resource number while no listed value is set.
    UIRecords<UIOptionRecord> valueImages{};
};

struct UISummaryRecord
{
    std::uint32_t lines = 4;
    UIRecords<DataModelIds::tagFeatureEnum> features{}; ///< In the order in which they are told.
};

struct UIMenuRecord
{
    UIRecords<UIMenuSectionRecord> sections{};
};

struct UIListViewColumnRecord
{
    std::uint32_t title = 0; ///< String number.
    std::uint32_t width = 50;
    bool rightAligned = false;
};

struct UIListViewRecord
{
    std::uint32_t visibleRows = 6;
    UIRecords<UIListViewColumnRecord> columns{};
};

struct UIEditableListRecord
{
    std::uint32_t maximumItems = 100;
    std::uint32_t itemLimit = 255; ///< Most characters of one item.
};

struct UIJobNotesPrefRecord
{
    std::uint32_t limit = 255;
    std::uint32_t lines = 3;
};

/// A list whose entries are fixed texts and no values of a feature.
struct UINonDataModelListRecord
{
    std::uint32_t visibleRows = 5;
    UIRecords<std::uint32_t> entries{}; ///< String numbers, in order.
};

struct UIMRURecord
{
    std::uint32_t capacity = 10; ///< Entries kept; the oldest leaves first.
};

struct UITreeViewRecord
{
    std::uint32_t visibleRows = 10;
    bool hasLines = true;
};

/// Which extra record a control record names, if any. The type says which, so a check box can
/// never be read as a slider.
using UIExtraRecord = std::variant<
    std::monostate, const UITextRecord*, const UIHyperlinkTextRecord*, const UIEditRecord*,
    const UIComboRecord*, const UIListRecord*, const UICheckRecord*, const UIRadioRecord*,
    const UISpinRecord*, const UIDimensionSpinRecord*, const UISliderRecord*, const UIButtonRecord*,
    const UIBitmapButtonRecord*, const UIImageRecord*, const UISummaryRecord*, const UIMenuRecord*,
    const UIListViewRecord*, const UIEditableListRecord*, const UIJobNotesPrefRecord*,
    const UINonDataModelListRecord*, const UIMRURecord*, const UITreeViewRecord*>;
