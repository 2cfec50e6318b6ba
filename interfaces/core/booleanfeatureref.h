#pragma once

#include "featureref.h"

/// A feature that is on or off.
class BooleanFeatureRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    bool GetValue(bool& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return Read(value, assertion);
    }
    bool GetDefaultValue(bool& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return ReadDefault(value, assertion);
    }

    bool SetValue(bool value) { return Write(o7::FeatureValue(value)); }
};
