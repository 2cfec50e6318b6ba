#pragma once

#include "featureref.h"
#include "rangeofdimensioncapability.h"

/// A feature with a length.
class DimensionFeatureRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    bool GetValue(Dimension& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return Read(value, assertion);
    }

    /// False, and nothing changed, when the length is out of range.
    bool SetValue(const Dimension& value) { return Write(value); }

    /// Never null; without limits when the feature is unsupported.
    std::unique_ptr<RangeOfDimensionCapability> GetRangeOfDimensionCapabilities() const
    {
        return CapabilitiesAs<RangeOfDimensionCapability>();
    }
};
