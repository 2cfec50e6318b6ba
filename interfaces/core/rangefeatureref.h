#pragma once

#include "featureref.h"
#include "rangecapability.h"

/// A feature with a low and a high number.
class RangeFeatureRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    bool GetValue(int& low, int& high, UnsupportedFeatureAssertEnum assertion) const
    {
        RangeOfInteger range;
        if (!Read(range, assertion))
            return false;
        low = range.GetLowerBound();
        high = range.GetUpperBound();
        return true;
    }

    /// False, and nothing changed, when low is above high or either is out of range.
    bool SetValue(int low, int high) { return Write(RangeOfInteger(low, high)); }

    /// Never null; without ranges when the feature is unsupported.
    std::unique_ptr<RangeCapability> GetRangeCapabilities() const
    {
        return CapabilitiesAs<RangeCapability>();
    }
};
