#pragma once

#include "featureref.h"
#include "rangecapability.h"

/// A feature with a whole number, which may count a length.
class IntegerFeatureRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    bool GetValue(int& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return Read(value, assertion);
    }
    bool GetDefaultValue(int& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return ReadDefault(value, assertion);
    }

    /// The number as a length; false also when the number does not count one.
    bool GetDimensionValue(Dimension& value, UnsupportedFeatureAssertEnum assertion) const
    {
        int count = 0;
        if (!Read(count, assertion))
            return false;
        const auto units = GetRangeCapabilities()->GetUnits();
        if (!units)
            return false;
        value = Dimension(count, *units);
        return true;
    }

    /// False, and nothing changed, when the number is in none of the ranges.
    bool SetValue(int value) { return Write(value); }

    /// Never null; without ranges when the feature is unsupported.
    std::unique_ptr<RangeCapability> GetRangeCapabilities() const
    {
        return CapabilitiesAs<RangeCapability>();
    }
};
