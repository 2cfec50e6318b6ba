#include "requiredsettings.h"

#include "featureservices.h"

namespace {

bool hasValue(const IFeatureNode& feature)
{
    o7::FeatureValue value;
    if (!feature.IsSpecified() || !feature.GetValue(value))
        return feature.IsSpecified(); // a list has none of its own
    const auto* text = std::get_if<CXString>(&value);
    return !text || !text->IsBlank();
}

bool isMissing(const IFeatureNode& feature)
{
    if (hasValue(feature))
        return false;
    const auto capabilities = feature.GetCapabilities();
    if (!capabilities || !capabilities->IsRequired())
        return false;
    const InterpretedState& state = capabilities->GetInterpretedState();
    // The person could not give it one.
    return !state.IsCleared() && !state.IsDisabled() && !state.IsHidden();
}

} // namespace

std::optional<FeatureIdWithContext>
o7::findMissing(FeatureServices& featureServices,
                const std::function<bool(const FeatureIdWithContext&)>& counts)
{
    const auto node = featureServices.GetFullListOfFeatures().GetNode();
    const std::size_t count = node ? node->GetNumChildren() : 0;
    for (std::size_t index = 0; index < count; ++index) {
        const auto feature = node->GetChild(index);
        if (feature && isMissing(*feature) && (!counts || counts(feature->GetId())))
            return feature->GetId();
    }
    return std::nullopt;
}
