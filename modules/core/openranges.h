#pragma once

#include "featurenode.h"

#include <cstdint>
#include <vector>

namespace o7 {

/// Whole numbers, or counts of a length, from the one bound to the other.
struct NumberRange
{
    std::int64_t low;
    std::int64_t high;
};

/// What the constraints that are active now leave of ranges in rising order that a feature for
/// whole numbers or lengths has. Where they leave nothing, all of it: a range without a number
/// would be none.
std::vector<NumberRange> OpenRanges(const FeatureNode& feature, std::vector<NumberRange> ranges);

} // namespace o7
