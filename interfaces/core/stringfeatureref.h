#pragma once

#include "featureref.h"

/// A feature with a text.
class StringFeatureRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    bool GetValue(CXString& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return Read(value, assertion);
    }
    bool GetDefaultValue(CXString& value, UnsupportedFeatureAssertEnum assertion) const
    {
        return ReadDefault(value, assertion);
    }

    /// False, and nothing changed, when the text is longer than the feature allows.
    bool SetValue(const CXString& value) { return Write(value); }
};
