#include "uipagesettings.h"

#include <algorithm>

#include "featureservices.h"
#include "productstringloader.h"
#include "setofsettingids.h"
#include "transactionref.h"

namespace {

bool differsFromDefault(const IFeatureNode& feature)
{
    o7::FeatureValue value;
    o7::FeatureValue standard;
    const bool hasValue = feature.GetValue(value);
    const bool hasDefault = feature.GetDefaultValue(standard);
    return hasValue != hasDefault || (hasValue && value != standard);
}

// Asked last, for it takes a snapshot of everything that is known of the feature.
bool isPersons(const IFeatureNode& feature)
{
    const auto capabilities = feature.GetCapabilities();
    return capabilities && !capabilities->IsReadOnly() && !capabilities->IsStateOnlyFeature();
}

bool isChanged(const IFeatureNode& feature)
{
    return differsFromDefault(feature) && isPersons(feature);
}

} // namespace

UIPageSettings::UIPageSettings(FeatureServices& featureServices, const SetOfSettingIds& settings)
    : m_featureServices(featureServices)
{
    for (const FeatureIdWithContext& id : settings) {
        const auto feature = featureServices.GetFeatureRef(id);
        if (feature && feature->IsSupported())
            m_settings.push_back({id, feature->GetNode()});
    }
}

std::optional<std::size_t> UIPageSettings::find(const FeatureIdWithContext& feature) const
{
    const auto found = std::find_if(m_settings.begin(), m_settings.end(),
                                    [&](const Setting& setting) { return setting.id == feature; });
    if (found == m_settings.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_settings.begin());
}

void UIPageSettings::addChanged(std::vector<FeatureIdWithContext>& changed) const
{
    for (const Setting& setting : m_settings)
        if (::isChanged(*setting.node) &&
            std::find(changed.begin(), changed.end(), setting.id) == changed.end())
            changed.push_back(setting.id);
}

bool UIPageSettings::isChanged() const
{
    return std::any_of(m_settings.begin(), m_settings.end(),
                       [](const Setting& setting) { return ::isChanged(*setting.node); });
}

void UIPageSettings::restoreDefaults() const
{
    const auto transaction = m_featureServices.OpenTransaction(CXString(L"page defaults"));
    for (const Setting& setting : m_settings)
        if (::isChanged(*setting.node))
            setting.node->RestoreToDefaultValue();
    transaction->Close(true);
}

CXString UIPageSettings::hiddenReasons(const ProductStringLoader& strings) const
{
    std::wstring lines;
    for (const Setting& setting : m_settings) {
        if (m_featureServices.TestFeature(setting.id))
            continue;
        const auto capabilities = setting.node->GetCapabilities();
        if (!capabilities || !capabilities->GetInterpretedState().IsHidden())
            continue;
        lines += lines.empty() ? L"" : L"\n";
        lines += strings.GetStringForFeature(setting.id.GetFeatureEnum()).c_str();
        lines += L": ";
        lines += capabilities->GetInterpretedState().GetReason().c_str();
    }
    return CXString(std::wstring_view(lines));
}
