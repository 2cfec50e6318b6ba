#pragma once

#include "featureref.h"
#include "optioncapability.h"

/// A feature with one value out of a list. While unspecified it reads as value 5001; writing 5001
/// makes it unspecified.
class OptionFeatureRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    /// "No value" (enum 1) when the feature is unsupported.
    ValueId GetValue() const
    {
        ValueId value;
        Read(value, kDoNotAssertIfUnsupported);
        return value;
    }
    bool GetValue(ValueId& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return Read(value, assertion);
    }

    ValueId GetDefaultValue() const
    {
        ValueId value;
        ReadDefault(value, kDoNotAssertIfUnsupported);
        return value;
    }
    bool GetDefaultValue(ValueId& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return ReadDefault(value, assertion);
    }

    /// False, and nothing changed, when the value is not among the options or is disabled or
    /// hidden by a constraint.
    bool SetValue(const ValueId& value) { return Write(value); }

    /// By value name. Returns the value that the feature has afterwards ("no value" when
    /// unsupported), which is the old one when the name was refused.
    ValueId SetValue(const CXString& name)
    {
        Write(ValueId(GetFeatureIdWithContextRef().GetFeatureId(), name));
        return GetValue();
    }

    /// Never null; without options when the feature is unsupported.
    std::unique_ptr<OptionCapability> GetOptionCapabilities() const
    {
        return CapabilitiesAs<OptionCapability>();
    }
};
