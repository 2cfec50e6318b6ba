#include "choices.h"

#include "representatives.h"
#include "settingswriter.h"
#include "valuecode.h"

namespace o7 {
namespace {

bool IsUnspecified(const FeatureValue& value)
{
    const auto* option = std::get_if<ValueId>(&value);
    return value.index() == 0 ||
           (option != nullptr && option->GetValueEnum() == DataModelIds::kValueUnspecified);
}

/// What the constraints around a feature compare it with; matters where values have an order or
/// are texts.
std::vector<const ValueTest*> TestsOf(const FeatureNode& feature)
{
    std::vector<const ValueTest*> tests;
    if (feature.IsCoded())
        return tests;
    for (const auto& reader : feature.readers)
        tests.push_back(&reader.constraint->when[reader.condition].test);
    for (const Constraint* effect : feature.effects)
        tests.push_back(&effect->affected);
    return tests;
}

} // namespace

bool IsPersons(const FeatureNode& feature)
{
    const FeatureDescription& description = feature.Description();
    return IsLeaf(feature) && description.kind != FeatureKind::Resolution &&
           !description.flags.readOnly && !description.flags.stateOnly;
}

const std::vector<FeatureValue>& Choices(FeatureNode& feature)
{
    std::vector<FeatureValue>& choices = feature.choices;
    if (!choices.empty())
        return choices;
    choices = Representatives(feature.Description(), TestsOf(feature));
    for (FeatureValue& value : choices) {
        if (IsUnspecified(value))
            value = {};
    }
    if (feature.Description().flags.required)
        std::erase(choices, FeatureValue());
    return choices;
}

bool IsPresent(const FeatureNode& feature, const FeatureValue& value)
{
    if (value.index() == 0)
        return !feature.PresentSpecified();
    return feature.PresentSpecified() &&
           (feature.IsCoded() ? feature.PresentCode() == CodeOf(feature.Description(), value)
                              : feature.PresentValue() == value);
}

bool IsFree(const FeatureNode& feature, const FeatureValue& value)
{
    return !feature.IsBlocked(
        value.index() != 0 ? value : FeatureValue(ValueId(DataModelIds::kValueUnspecified)));
}

} // namespace o7
