#pragma once

#include "capabilitiesnode.h"
#include "dimension.h"

#include <optional>
#include <tuple>
#include <utility>

/// The lengths that a dimension feature accepts now: what other settings rule out at the ends is
/// not among them.
class RangeOfDimensionCapability : public CapabilitiesNode
{
public:
    RangeOfDimensionCapability() = default;
    explicit RangeOfDimensionCapability(const CapabilitiesNode& base) : CapabilitiesNode(base) {}
    /// `supported` where it is more than what lies between `low` and `high`.
    RangeOfDimensionCapability(const CapabilitiesNode& base, const Dimension& low,
                               const Dimension& high,
                               std::optional<std::pair<Dimension, Dimension>> supported = {})
        : CapabilitiesNode(base),
          m_low(low),
          m_high(high),
          m_supported(std::move(supported)),
          m_limited(true)
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

    /// What the product has, ruled out now or not; false when the feature has no limits.
    bool GetSupportedValues(Dimension& low, Dimension& high) const
    {
        if (!GetRangeValues(low, high))
            return false;
        if (m_supported)
            std::tie(low, high) = *m_supported;
        return true;
    }

private:
    Dimension m_low;
    Dimension m_high;
    std::optional<std::pair<Dimension, Dimension>> m_supported;
    bool m_limited = false;
};
