#pragma once

#include "capabilitiesnode.h"
#include "dimension.h"

/// The lengths that a dimension feature accepts.
class RangeOfDimensionCapability : public CapabilitiesNode
{
public:
    RangeOfDimensionCapability() = default;
    explicit RangeOfDimensionCapability(const CapabilitiesNode& base) : CapabilitiesNode(base) {}
    RangeOfDimensionCapability(const CapabilitiesNode& base, const Dimension& low,
                               const Dimension& high)
        : CapabilitiesNode(base), m_low(low), m_high(high), m_limited(true)
    {
    }

    /// False when the feature has no limits.
    bool GetRangeValues(Dimension& low, Dimension& high) const
    {
        if (!m_limited)
            return false;
        low = m_low;
        high = m_high;
        return true;
    }

private:
    Dimension m_low;
    Dimension m_high;
    bool m_limited = false;
};
