// The values of a small feature as numbers below 64, so that a question about them is one bit of a
// mask. Option features and booleans have codes; all others are compared value by value.
#pragma once

#include "description.h"

#include <cstdint>

namespace o7 {

/// The code of a feature without a value.
inline constexpr unsigned kCodeNothing = 63;

bool HasCodes(const FeatureDescription& feature);

/// The code of a value that the feature accepts, or of value 5001.
unsigned CodeOf(const FeatureDescription& feature, const FeatureValue& value);

/// The codes that the test answers with yes; kCodeNothing according to `holdsWithoutValue`.
std::uint64_t MaskOf(const FeatureDescription& feature, const ValueTest& test,
                     bool holdsWithoutValue);

inline bool IsInMask(std::uint64_t mask, unsigned code)
{
    return (mask >> code & 1U) != 0;
}

} // namespace o7
