#include "uidatavalidator.h"

#include <utility>

#include "requiredsettings.h"

UIDataValidator::UIDataValidator(FeatureServices& featureServices, UIEventProcessor&)
    : m_featureServices(featureServices)
{
}

void UIDataValidator::setScope(std::function<bool(const FeatureIdWithContext&)> scope)
{
    m_scope = std::move(scope);
}

bool UIDataValidator::validate(const NMHDR&)
{
    const auto missing = o7::findMissing(m_featureServices, m_scope);
    if (missing)
        m_missing = *missing;
    return !missing;
}
