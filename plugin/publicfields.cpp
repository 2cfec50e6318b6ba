#include "publicfields.h"

#include <algorithm>
#include <optional>
#include <span>

#include "productfeatures.h"

namespace o7 {
namespace {

/// One value of an option feature and the number by which applications know it.
struct ValueRow
{
    int value;
    short number;
};

// Of several rows with one value the first is written; of several with one number the first that
// the product accepts is read.
// clang-format off
constexpr ValueRow kOrientations[] = {
    {5145, DMORIENT_PORTRAIT},
    {5146, DMORIENT_LANDSCAPE},
};
constexpr ValueRow kPapers[] = {
    {5110, DMPAPER_A3},
    {5111, DMPAPER_A4},
    {5111, DMPAPER_A4SMALL},
    {5112, DMPAPER_A5},
    {5113, DMPAPER_LETTER},
    {5113, DMPAPER_LETTERSMALL},
    {5114, DMPAPER_LEGAL},
    {5115, DMPAPER_11X17},
    {5115, DMPAPER_TABLOID},
    {5116, DMPAPER_ENV_DL},
    {5117, DMPAPER_ENV_C5},
};
constexpr ValueRow kBins[] = {
    {5120, DMBIN_AUTO},
    {5120, DMBIN_FORMSOURCE},
    {5121, DMBIN_USER + 1},
    {5122, DMBIN_USER + 2},
    {5123, DMBIN_USER + 3},
    {5124, DMBIN_USER + 4},
    {5125, DMBIN_MANUAL},
};
constexpr ValueRow kDuplexModes[] = {
    {5140, DMDUP_SIMPLEX},
    {5141, DMDUP_VERTICAL},
    {5142, DMDUP_HORIZONTAL},
};
constexpr ValueRow kColours[] = {
    {5150, DMCOLOR_COLOR},
    {5151, DMCOLOR_COLOR},
    {5152, DMCOLOR_MONOCHROME},
};
constexpr ValueRow kResolutions[] = {
    {5190, 600},
    {5191, 1200},
};
constexpr ValueRow kMedia[] = {
    {5130, DMMEDIA_STANDARD},
    {5131, DMMEDIA_USER + 1},
    {5132, DMMEDIA_USER + 2},
    {5133, DMMEDIA_GLOSSY},
    {5134, DMMEDIA_USER + 3},
    {5135, DMMEDIA_TRANSPARENCY},
    {5136, DMMEDIA_USER + 4},
};

short fromDword(DWORD number) { return static_cast<short>(number); }
// clang-format on

/// One field that stands for an option feature. Fields differ in type and some share storage, hence
/// functions and not pointers to members.
struct FieldRow
{
    DWORD bits; ///< in dmFields; all of them set when written, the first that is set is read
    DataModelIds::tagFeatureEnum feature;
    std::span<const ValueRow> values;
    short (*read)(const DEVMODEW&);
    void (*write)(DEVMODEW&, short);
};

// clang-format off
constexpr FieldRow kFields[] = {
    {DM_ORIENTATION,   kOrientation, kOrientations,
        [](const DEVMODEW& d) { return d.dmOrientation; },
        [](DEVMODEW& d, short n) { d.dmOrientation = n; }},
    {DM_PAPERSIZE,     kPaperSize,   kPapers,
        [](const DEVMODEW& d) { return d.dmPaperSize; },
        [](DEVMODEW& d, short n) { d.dmPaperSize = n; }},
    {DM_DEFAULTSOURCE, kPaperTray,   kBins,
        [](const DEVMODEW& d) { return d.dmDefaultSource; },
        [](DEVMODEW& d, short n) { d.dmDefaultSource = n; }},
    {DM_DUPLEX,        kSides,       kDuplexModes,
        [](const DEVMODEW& d) { return d.dmDuplex; },
        [](DEVMODEW& d, short n) { d.dmDuplex = n; }},
    {DM_COLOR,         kColourMode,  kColours,
        [](const DEVMODEW& d) { return d.dmColor; },
        [](DEVMODEW& d, short n) { d.dmColor = n; }},
    {DM_PRINTQUALITY,  kResolution,  kResolutions,
        [](const DEVMODEW& d) { return d.dmPrintQuality; },
        [](DEVMODEW& d, short n) { d.dmPrintQuality = n; d.dmYResolution = n;
                                   d.dmFields |= DM_YRESOLUTION; }},
    {DM_MEDIATYPE,     kPaperType,   kMedia,
        [](const DEVMODEW& d) { return fromDword(d.dmMediaType); },
        [](DEVMODEW& d, short n) { d.dmMediaType = static_cast<DWORD>(n); }},
};
// clang-format on

std::optional<short> numberOf(std::span<const ValueRow> rows, int value)
{
    const auto row = std::ranges::find(rows, value, &ValueRow::value);
    return row == rows.end() ? std::nullopt : std::optional(row->number);
}

/// True when the feature says (now) what the field says.
bool followField(const FieldRow& field, const ListOfFeaturesRef& features, const DEVMODEW& devMode)
{
    OptionFeatureRef feature = features.GetOptionFeature(FeatureId(field.feature));
    const short wanted = field.read(devMode);
    if (numberOf(field.values, feature.GetValue().GetValueEnum()) == wanted) {
        return true;
    }
    return std::ranges::any_of(field.values, [&](const ValueRow& row) {
        return row.number == wanted &&
               feature.SetValue(ValueId(static_cast<DataModelIds::tagValueEnum>(row.value)));
    });
}

/// Several fields may depend on each other through constraints (the paper on the tray), whatever
/// their order: what was refused is tried again as long as another field got its way.
void readOptionFields(const ListOfFeaturesRef& features, const DEVMODEW& devMode)
{
    std::vector<const FieldRow*> open;
    for (const FieldRow& field : kFields) {
        if ((devMode.dmFields & field.bits) != 0) {
            open.push_back(&field);
        }
    }
    for (std::size_t before = 0; before != open.size();) {
        before = open.size();
        std::erase_if(
            open, [&](const FieldRow* field) { return followField(*field, features, devMode); });
    }
}

} // namespace

void writePublicFields(const ListOfFeaturesRef& features, DEVMODEW& devMode)
{
    for (const FieldRow& field : kFields) {
        const ValueId value = features.GetOptionFeature(FeatureId(field.feature)).GetValue();
        if (const auto number = numberOf(field.values, value.GetValueEnum())) {
            field.write(devMode, *number);
            devMode.dmFields |= field.bits;
        }
    }
    int copies = 0;
    if (features.GetIntegerFeature(FeatureId(kCopies))
            .GetValue(copies, FeatureRef::kDoNotAssertIfUnsupported)) {
        devMode.dmCopies = static_cast<short>(copies);
        devMode.dmFields |= DM_COPIES;
    }
    bool collate = false;
    if (features.GetBooleanFeature(FeatureId(kCollate))
            .GetValue(collate, FeatureRef::kDoNotAssertIfUnsupported)) {
        devMode.dmCollate = collate ? DMCOLLATE_TRUE : DMCOLLATE_FALSE;
        devMode.dmFields |= DM_COLLATE;
    }
}

void readPublicFields(const ListOfFeaturesRef& features, const DEVMODEW& devMode)
{
    if ((devMode.dmFields & DM_COPIES) != 0) {
        features.GetIntegerFeature(FeatureId(kCopies)).SetValue(devMode.dmCopies);
    }
    if ((devMode.dmFields & DM_COLLATE) != 0) {
        features.GetBooleanFeature(FeatureId(kCollate))
            .SetValue(devMode.dmCollate == DMCOLLATE_TRUE);
    }
    readOptionFields(features, devMode);
}

std::vector<FieldChoice> fieldChoices(const ListOfFeaturesRef& features, DWORD field)
{
    std::vector<FieldChoice> choices;
    const auto row = std::ranges::find(kFields, field, &FieldRow::bits);
    if (row == std::end(kFields)) {
        return choices;
    }
    const auto options = features.GetOptionFeature(FeatureId(row->feature)).GetOptionCapabilities();
    for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
        const OptionWithState& option = options->GetOptionWithState(i);
        const auto number = numberOf(row->values, option.GetValueId().GetValueEnum());
        if (number && !option.GetInterpretedState().IsHidden() &&
            std::ranges::find(choices, *number, &FieldChoice::number) == choices.end()) {
            choices.push_back({*number, option.GetOptionDisplayString()});
        }
    }
    return choices;
}

int mostCopies(const ListOfFeaturesRef& features)
{
    const IntegerFeatureRef copies = features.GetIntegerFeature(FeatureId(kCopies));
    return copies.IsSupported()
               ? copies.GetRangeCapabilities()->GetLargestAndSmallestRangeValues().GetUpperBound()
               : 1;
}

} // namespace o7
