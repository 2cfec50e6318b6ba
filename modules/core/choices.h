// What a person, or the resolver for one, could choose for a feature.
#pragma once

#include "featurenode.h"

#include <vector>

namespace o7 {

/// Whether a person can change the feature at all: not what the device reports.
bool IsPersons(const FeatureNode& feature);

/// The values that stand for all it can have, as they are written (monostate: unspecified); the
/// default first. Kept in the feature until its constraints change.
const std::vector<FeatureValue>& Choices(FeatureNode& feature);

/// Whether the feature has the value already.
bool IsPresent(const FeatureNode& feature, const FeatureValue& value);

/// Whether no active constraint keeps the value from being chosen.
bool IsFree(const FeatureNode& feature, const FeatureValue& value);

} // namespace o7
