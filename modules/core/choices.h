// What a person, or the resolver for one, could choose for a feature.
#pragma once

#include "featurenode.h"

#include <vector>

namespace o7 {

/// Whether a person can change the feature at all: not what the device reports.
bool IsPersons(const FeatureNode& feature);

/// The values that stand for all it can have, as they are written (monostate: unspecified), its
/// present one left out; the default first.
std::vector<FeatureValue> OtherValues(const FeatureNode& feature);

/// Whether no active constraint keeps the value from being chosen.
bool IsFree(const FeatureNode& feature, const FeatureValue& value);

} // namespace o7
