#pragma once

#include "featurevalue.h"

#include <vector>

namespace o7 {

/// A question about one value: how it compares with a set of values.
struct ValueTest
{
    DataModelIds::tagComparisonEnum comparison = DataModelIds::kEqual;
    /// For equality any number; for an order comparison those it must all hold for; for kBetween
    /// and kOutside the two bounds.
    std::vector<FeatureValue> values;

    bool Matches(const FeatureValue& actual) const;
    /// What it answers where there is no value.
    bool MatchesNothing() const { return comparison == DataModelIds::kNotEqual; }

    friend bool operator==(const ValueTest&, const ValueTest&) = default;
};

} // namespace o7
