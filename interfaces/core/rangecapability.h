#pragma once

#include "capabilitiesnode.h"
#include "dimension.h"
#include "rangeofinteger.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

/// The ranges of whole numbers that an integer or range feature accepts now: what other settings
/// rule out is not among them.
class RangeCapability : public CapabilitiesNode
{
public:
    RangeCapability() = default;
    /// `units` is set when the integer counts a length; `supported` where it is more than `ranges`.
    RangeCapability(const CapabilitiesNode& base, std::vector<RangeOfInteger> ranges,
                    std::optional<Dimension::UnitsEnum> units,
                    std::vector<RangeOfInteger> supported = {})
        : CapabilitiesNode(base),
          m_ranges(std::move(ranges)),
          m_supported(std::move(supported)),
          m_units(units)
    {
    }

    /// The smallest and the largest number over all ranges; false when there is no range.
    bool GetRangeValues(int& low, int& high) const
    {
        if (m_ranges.empty())
            return false;
        const RangeOfInteger bounds = GetLargestAndSmallestRangeValues();
        low = bounds.GetLowerBound();
        high = bounds.GetUpperBound();
        return true;
    }

    /// The same as lengths; false unless the integer counts a length.
    bool GetDimensionRangeValues(Dimension& low, Dimension& high) const
    {
        int lowCount = 0;
        int highCount = 0;
        if (!m_units || !GetRangeValues(lowCount, highCount))
            return false;
        low = Dimension(lowCount, *m_units);
        high = Dimension(highCount, *m_units);
        return true;
    }

    /// The unit of length that the integer counts; none for a plain number.
    std::optional<Dimension::UnitsEnum> GetUnits() const { return m_units; }

    /// How many separate ranges there are; they are in rising order.
    std::size_t GetNumberOfValues() const { return m_ranges.size(); }

    /// Out of range gives an empty range of 0 to 0.
    RangeOfInteger GetRangeValueByIndex(std::size_t index) const
    {
        return index < m_ranges.size() ? m_ranges[index] : RangeOfInteger();
    }

    /// The bounds over all ranges; 0 to 0 when there is none.
    RangeOfInteger GetLargestAndSmallestRangeValues() const
    {
        if (m_ranges.empty())
            return RangeOfInteger();
        int low = m_ranges.front().GetLowerBound();
        int high = m_ranges.front().GetUpperBound();
        for (const RangeOfInteger& range : m_ranges) {
            low = std::min(low, range.GetLowerBound());
            high = std::max(high, range.GetUpperBound());
        }
        return RangeOfInteger(low, high);
    }

    /// What the product has, ruled out now or not, in rising order.
    const std::vector<RangeOfInteger>& GetSupportedRanges() const
    {
        return m_supported.empty() ? m_ranges : m_supported;
    }

private:
    std::vector<RangeOfInteger> m_ranges;
    std::vector<RangeOfInteger> m_supported; ///< Empty: the same.
    std::optional<Dimension::UnitsEnum> m_units;
};
