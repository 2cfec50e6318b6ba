#pragma once

#include "featureidwithcontext.h"

/// One capability (state, options, range) of one feature.
class CapabilityIdWithContext : public FeatureIdWithContext
{
public:
    CapabilityIdWithContext() = default;
    CapabilityIdWithContext(const FeatureIdWithContext& feature,
                            DataModelIds::CapabilityTypeEnum type)
        : FeatureIdWithContext(feature), m_type(type)
    {
    }

    DataModelIds::CapabilityTypeEnum GetCapabilityType() const { return m_type; }

    std::unique_ptr<SettingIdWithContext> Clone() const override
    {
        return std::make_unique<CapabilityIdWithContext>(*this);
    }
    std::unique_ptr<SettingIdWithContext> CreateDefaultObject() const override
    {
        return std::make_unique<CapabilityIdWithContext>();
    }

private:
    DataModelIds::CapabilityTypeEnum m_type = DataModelIds::kCapabilityState;
};
