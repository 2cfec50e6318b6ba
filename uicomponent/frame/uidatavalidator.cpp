#include "uidatavalidator.h"

#include "featureservices.h"

namespace {

/// An empty text is none.
bool hasValue(const IFeatureNode& feature)
{
    o7::FeatureValue value;
    const auto* text = feature.GetValue(value) ? std::get_if<CXString>(&value) : nullptr;
    return feature.IsSpecified() && (text == nullptr || !text->IsBlank());
}

} // namespace

UIDataValidator::UIDataValidator(FeatureServices& featureServices, UIEventProcessor&)
    : m_featureServices(featureServices)
{
}

bool UIDataValidator::validate(const NMHDR&)
{
    const auto list = m_featureServices.GetFullListOfFeatures();
    const auto& node = list.GetNode();
    const std::size_t count = node ? node->GetNumChildren() : 0;
    for (std::size_t index = 0; index < count; ++index) {
        const auto feature = node->GetChild(index);
        if (!feature || hasValue(*feature))
            continue;
        const auto capabilities = feature->GetCapabilities();
        if (!capabilities || !capabilities->IsRequired())
            continue;
        const InterpretedState state = capabilities->GetInterpretedState();
        if (state.IsCleared() || state.IsDisabled() || state.IsHidden())
            continue; // the person could not give it one
        m_missing = feature->GetId();
        return false;
    }
    return true;
}
