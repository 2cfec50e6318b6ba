#include "publicfields.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <optional>
#include <vector>

#include "productfeatures.h"
#include "systemnumbers.h"

namespace o7 {
namespace {

constexpr auto kQuietly = FeatureRef::kDoNotAssertIfUnsupported;
/// Applications round lengths in their own units.
constexpr int kToleranceTenths = 10;

struct FieldRow
{
    DocumentField field;
    std::uint32_t bit; ///< in `fields`
    DataModelIds::tagFeatureEnum feature;
    int PublicFields::*number;
};

// The paper comes first: what does not go together with the paper that was asked for gives way.
// clang-format off
constexpr FieldRow kFields[] = {
    {DocumentField::PaperSize,   kPaperSizeField,   kPaperSize,    &PublicFields::paperSize},
    {DocumentField::Orientation, kOrientationField, kOrientation,  &PublicFields::orientation},
    {DocumentField::Source,      kSourceField,      kPaperTray,    &PublicFields::source},
    {DocumentField::Duplex,      kDuplexField,      kSides,        &PublicFields::duplex},
    {DocumentField::Colour,      kColourField,      kColourMode,   &PublicFields::colour},
    {DocumentField::Grade,       kQualityField,     kPrintQuality, &PublicFields::quality},
    {DocumentField::Quality,     kQualityField,     kResolution,   &PublicFields::quality},
    {DocumentField::MediaType,   kMediaTypeField,   kPaperType,    &PublicFields::mediaType},
};
// clang-format on

const FieldRow& rowOf(DocumentField field)
{
    return *std::ranges::find(kFields, field, &FieldRow::field);
}

template <class Visit> void forEachOption(const OptionFeatureRef& feature, Visit visit)
{
    const auto options = feature.GetOptionCapabilities();
    for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
        visit(options->GetOptionWithState(i));
    }
}

/// The options that satisfy a predicate, in the product's order.
template <class Predicate>
std::vector<ValueId> optionsWhere(const OptionFeatureRef& feature, Predicate predicate)
{
    std::vector<ValueId> values;
    forEachOption(feature, [&](const OptionWithState& option) {
        if (predicate(option.GetValueId())) {
            values.push_back(option.GetValueId());
        }
    });
    return values;
}

/// A program can set no more than a person can: nothing that is greyed or hidden as a whole, and
/// nothing of the device's.
bool isOpen(const FeatureRef& feature)
{
    const auto capabilities = feature.GetCapabilities();
    const InterpretedState& state = capabilities->GetInterpretedState();
    return !state.IsDisabled() && !state.IsHidden() && !capabilities->IsDeviceFeature();
}

/// What is cleared or hidden is not in force, so no field tells it.
bool isInForce(const FeatureRef& feature)
{
    const auto capabilities = feature.GetCapabilities();
    const InterpretedState& state = capabilities->GetInterpretedState();
    return !state.IsCleared() && !state.IsHidden();
}

/// Every write of a field's goes this way.
template <class Ref, class Value> bool set(Ref feature, const Value& value)
{
    return isOpen(feature) && feature.SetValue(value);
}

/// True when the feature takes one of the values.
bool setFirstOf(const OptionFeatureRef& feature, const std::vector<ValueId>& values)
{
    return std::ranges::any_of(values, [&](const ValueId& value) { return set(feature, value); });
}

/// True when the feature says (now) what the number says.
bool followNumber(const OptionFeatureRef& feature, DocumentField field, int wanted)
{
    return systemNumber(field, feature.GetValue()) == wanted ||
           setFirstOf(feature, optionsWhere(feature,
                                            [&](const ValueId& value) {
                                                return systemNumber(field, value) == wanted;
                                            })) ||
           setFirstOf(feature, optionsWhere(feature, [&](const ValueId& value) {
                          return isOtherNumber(field, value, wanted);
                      }));
}

int tenths(const Dimension& length)
{
    return static_cast<int>(
        std::lround(length.GetDoubleValue(Dimension::UnitsEnum::TenthOfMillimetre)));
}

DimensionFeatureRef dimension(const ListOfFeaturesRef& features, DataModelIds::tagFeatureEnum id)
{
    return features.GetDimensionFeature(FeatureId(id));
}

bool isSize(const PaperSize& size, int width, int length)
{
    const auto near = [](int a, int b) { return std::abs(a - b) <= kToleranceTenths; };
    return size.width > 0 && ((near(size.width, width) && near(size.height, length)) ||
                              (near(size.width, length) && near(size.height, width)));
}

// --- the paper --------------------------------------------------------------------------------

enum class PaperWish
{
    None,
    Lengths,
    Number,
    Name,
};

bool saysAlready(PaperWish wish, const ListOfFeaturesRef& features, const PublicFields& fields)
{
    const ValueId paper = featureOf(features, DocumentField::PaperSize).GetValue();
    switch (wish) {
    case PaperWish::Lengths:
        return isSize(sizeOfPaper(features, paper), fields.paperWidth, fields.paperLength);
    case PaperWish::Number:
        return systemNumber(DocumentField::PaperSize, paper) == fields.paperSize;
    case PaperWish::Name:
        return paper.GetDisplayString().Left(static_cast<int>(kNameLength) - 1) == fields.formName;
    case PaperWish::None:
        break;
    }
    return false;
}

PaperWish paperWish(const ListOfFeaturesRef& features, const PublicFields& fields, bool inStep)
{
    const bool lengths = fields.has(kPaperLengthField | kPaperWidthField) &&
                         fields.paperLength > 0 && fields.paperWidth > 0;
    const struct
    {
        PaperWish wish;
        bool made;
    } rows[] = {{PaperWish::Lengths, lengths},
                {PaperWish::Number, fields.has(kPaperSizeField) && fields.paperSize > 0},
                {PaperWish::Name, fields.has(kFormNameField) && !fields.formName.IsEmpty()}};
    for (const auto& row : rows) {
        if (row.made && !(inStep && saysAlready(row.wish, features, fields))) {
            return row.wish;
        }
    }
    return PaperWish::None;
}

/// The size that the package states for a paper.
std::optional<PaperSize> fixedSize(const ListOfFeaturesRef& features, const ValueId& paper)
{
    std::optional<PaperSize> size;
    forEachOption(featureOf(features, DocumentField::PaperSize), [&](const OptionWithState&
                                                                         option) {
        if (option.GetValueId() == paper && option.GetMediaSize()) {
            size = {tenths(option.GetMediaSize()->width), tenths(option.GetMediaSize()->height)};
        }
    });
    return size;
}

/// Chooses a paper without a size of its own, with these lengths. The paper comes first: without it
/// the lengths may be greyed.
bool setCustomSize(const ListOfFeaturesRef& features, const ValueId& paper, int width, int length)
{
    const OptionFeatureRef papers = featureOf(features, DocumentField::PaperSize);
    const ValueId paperBefore = papers.GetValue();
    const auto setLength = [&](DataModelIds::tagFeatureEnum id, int size) {
        return set(dimension(features, id),
                   Dimension(size, Dimension::UnitsEnum::TenthOfMillimetre));
    };
    if (!set(papers, paper)) {
        return false;
    }
    const PaperSize before = sizeOfPaper(features, paper);
    if (isSize(before, width, length)) {
        return true; // of a roll that has no say in one of them
    }
    if (setLength(kCustomWidth, width) && setLength(kCustomLength, length)) {
        return true;
    }
    setLength(kCustomWidth, before.width);
    setLength(kCustomLength, before.height);
    set(papers, paperBefore);
    return false;
}

/// The paper that the number means, when it has that size or can have any.
bool followNumberOfSize(const ListOfFeaturesRef& features, const PublicFields& fields)
{
    const OptionFeatureRef papers = featureOf(features, DocumentField::PaperSize);
    const auto meant = optionsWhere(papers, [&](const ValueId& paper) {
        return fields.has(kPaperSizeField) &&
               systemNumber(DocumentField::PaperSize, paper) == fields.paperSize;
    });
    return std::ranges::any_of(meant, [&](const ValueId& paper) {
        const auto size = fixedSize(features, paper);
        return size ? isSize(*size, fields.paperWidth, fields.paperLength) && set(papers, paper)
                    : setCustomSize(features, paper, fields.paperWidth, fields.paperLength);
    });
}

/// The paper that the number means too, else any paper of that size, else the custom size.
bool followLengths(const ListOfFeaturesRef& features, const PublicFields& fields)
{
    if (followNumberOfSize(features, fields) || saysAlready(PaperWish::Lengths, features, fields)) {
        return true;
    }
    const OptionFeatureRef papers = featureOf(features, DocumentField::PaperSize);
    const auto fitting = optionsWhere(papers, [&](const ValueId& paper) {
        return isSize(fixedSize(features, paper).value_or(PaperSize{}), fields.paperWidth,
                      fields.paperLength);
    });
    if (!fitting.empty()) {
        return setFirstOf(papers, fitting);
    }
    return setCustomSize(features, kCustomPaper, fields.paperWidth, fields.paperLength) ||
           (fields.has(kPaperSizeField) &&
            followNumber(papers, DocumentField::PaperSize, fields.paperSize));
}

bool followFormName(const ListOfFeaturesRef& features, const PublicFields& fields)
{
    const OptionFeatureRef papers = featureOf(features, DocumentField::PaperSize);
    return setFirstOf(papers, optionsWhere(papers, [&](const ValueId& paper) {
                          return paper.GetDisplayString().Left(static_cast<int>(kNameLength) - 1) ==
                                 fields.formName;
                      }));
}

bool followPaper(PaperWish wish, const ListOfFeaturesRef& features, const PublicFields& fields)
{
    switch (wish) {
    case PaperWish::Lengths:
        return followLengths(features, fields);
    case PaperWish::Number:
        return followNumber(featureOf(features, DocumentField::PaperSize), DocumentField::PaperSize,
                            fields.paperSize);
    case PaperWish::Name:
        return followFormName(features, fields);
    case PaperWish::None:
        break;
    }
    return true;
}

void writePaper(const ListOfFeaturesRef& features, PublicFields& fields)
{
    const ValueId paper = featureOf(features, DocumentField::PaperSize).GetValue();
    const PaperSize size = sizeOfPaper(features, paper);
    // The field is a short; a roll may be longer.
    constexpr int kLongest = 32767;
    const bool isUsers = paper.GetValueEnum() >= DataModelIds::kValueFirstUserText;
    if (size.width > 0 && size.height <= kLongest && !isUsers) {
        fields.paperWidth = size.width;
        fields.paperLength = size.height;
        if (fields.paperSize >= kFirstOwnPaper) {
            fields.fields |= kPaperWidthField | kPaperLengthField;
        }
    }
    if (!paper.GetValueName().IsEmpty()) {
        fields.formName = paper.GetDisplayString();
        fields.fields |= kFormNameField;
    }
}

// --- scaling ----------------------------------------------------------------------------------

IntegerFeatureRef percent(const ListOfFeaturesRef& features)
{
    return features.GetIntegerFeature(FeatureId(kScalePercent));
}

/// Per cent, or 0 for a product that cannot scale by a number.
int scaleOf(const ListOfFeaturesRef& features)
{
    int number = 0;
    const OptionFeatureRef mode = features.GetOptionFeature(FeatureId(kScaling));
    if (!percent(features).GetValue(number, kQuietly)) {
        return 0;
    }
    return mode.GetValue() == kScaleByPercentage && isInForce(mode) ? number : 100;
}

bool followScale(const ListOfFeaturesRef& features, int wanted)
{
    if (scaleOf(features) == wanted) {
        return true;
    }
    const OptionFeatureRef mode = features.GetOptionFeature(FeatureId(kScaling));
    if (wanted == 100) {
        return set(mode, ValueId(kNoScaling));
    }
    const ValueId before = mode.GetValue();
    if (!set(mode, ValueId(kScaleByPercentage))) {
        return false;
    }
    if (set(percent(features), wanted)) {
        return true;
    }
    set(mode, before);
    return false;
}

void writeScale(const ListOfFeaturesRef& features, PublicFields& fields)
{
    fields.scale = scaleOf(features);
    if (fields.scale != 0) {
        fields.fields |= kScaleField;
    }
}

// --- copies -----------------------------------------------------------------------------------

void writeCopies(const ListOfFeaturesRef& features, PublicFields& fields)
{
    const auto copies = features.GetIntegerFeature(FeatureId(kCopies));
    if (isInForce(copies) && copies.GetValue(fields.copies, kQuietly)) {
        fields.fields |= kCopiesField;
    }
    bool collate = false;
    const auto collation = features.GetBooleanFeature(FeatureId(kCollate));
    if (isInForce(collation) && collation.GetValue(collate, kQuietly)) {
        fields.collate = collate ? 1 : 0;
        fields.fields |= kCollateField;
    }
}

bool followCollate(const ListOfFeaturesRef& features, int wanted)
{
    // Any other number is no answer to a question of yes and no.
    return (wanted == 0 || wanted == 1) &&
           set(features.GetBooleanFeature(FeatureId(kCollate)), wanted == 1);
}

/// Whether the row's field is the one that `quality` means: dots when positive, else a grade.
bool isMeant(const FieldRow& row, const PublicFields& fields)
{
    return row.field == DocumentField::Grade     ? fields.quality < 0
           : row.field == DocumentField::Quality ? fields.quality > 0
                                                 : row.field != DocumentField::PaperSize;
}

} // namespace

OptionFeatureRef featureOf(const ListOfFeaturesRef& features, DocumentField field)
{
    return features.GetOptionFeature(FeatureId(rowOf(field).feature));
}

PaperSize sizeOfPaper(const ListOfFeaturesRef& features, const ValueId& paper)
{
    if (const auto size = fixedSize(features, paper)) {
        return *size;
    }
    Dimension width;
    Dimension length;
    return dimension(features, kCustomWidth).GetValue(width, kQuietly) &&
                   dimension(features, kCustomLength).GetValue(length, kQuietly)
               ? PaperSize{tenths(width), tenths(length)}
               : PaperSize{};
}

PaperSize customLimit(const ListOfFeaturesRef& features, bool largest)
{
    const auto limit = [&](DataModelIds::tagFeatureEnum id) {
        Dimension low;
        Dimension high;
        const bool limited =
            dimension(features, id).GetRangeOfDimensionCapabilities()->GetRangeValues(low, high);
        return limited ? tenths(largest ? high : low) : 0;
    };
    return {limit(kCustomWidth), limit(kCustomLength)};
}

PublicFields publicFields(const ListOfFeaturesRef& features)
{
    PublicFields fields;
    for (const FieldRow& row : kFields) {
        // The last row of a field has its way: dots rather than a grade.
        const OptionFeatureRef feature = features.GetOptionFeature(FeatureId(row.feature));
        const auto number = systemNumber(row.field, feature.GetValue());
        if (number && isInForce(feature)) {
            fields.*row.number = *number;
            fields.fields |= row.bit;
        }
    }
    const ValueId resolution = featureOf(features, DocumentField::Quality).GetValue();
    if (const auto dots = resolutionOf(resolution.GetValueName())) {
        fields.yResolution = dots->down;
        fields.fields |= kYResolutionField;
    }
    writePaper(features, fields);
    writeCopies(features, fields);
    writeScale(features, fields);
    return fields;
}

void followPublicFields(const ListOfFeaturesRef& features, const PublicFields& fields, bool inStep)
{
    // Fields may depend on each other through constraints (the paper on the tray), whatever their
    // order: what was refused is tried again as long as another field got its way.
    std::vector<std::function<bool()>> open;
    const PaperWish wish = paperWish(features, fields, inStep);
    open.emplace_back([&, wish] { return followPaper(wish, features, fields); });
    for (const FieldRow& row : kFields) {
        if (fields.has(row.bit) && isMeant(row, fields)) {
            open.emplace_back([&] {
                return followNumber(features.GetOptionFeature(FeatureId(row.feature)), row.field,
                                    fields.*row.number);
            });
        }
    }
    if (fields.has(kCopiesField)) {
        open.emplace_back(
            [&] { return set(features.GetIntegerFeature(FeatureId(kCopies)), fields.copies); });
    }
    if (fields.has(kCollateField)) {
        open.emplace_back([&] { return followCollate(features, fields.collate); });
    }
    if (fields.has(kScaleField) && fields.scale > 0) {
        open.emplace_back([&] { return followScale(features, fields.scale); });
    }
    for (std::size_t before = 0; before != open.size();) {
        before = open.size();
        std::erase_if(open, [](const auto& follow) { return follow(); });
    }
}

} // namespace o7
