#pragma once

#include "featureref.h"

/// A feature that tells the device's resolution; it is read only.
class ResolutionFeatureRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    /// Dots per inch across and down, and bits per dot.
    bool GetValue(int& horizontal, int& vertical, int& bitsPerDot,
                  UnsupportedFeatureAssertEnum assertion) const
    {
        o7::Resolution resolution;
        if (!Read(resolution, assertion))
            return false;
        horizontal = resolution.horizontal;
        vertical = resolution.vertical;
        bitsPerDot = resolution.bitsPerDot;
        return true;
    }
};
