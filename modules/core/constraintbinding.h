#pragma once

#include "constraint.h"

#include <memory>

namespace o7 {

/// Makes the constraints that a feature's description declares, bound to the features around it: a
/// list's own constraints, and the rows of a default that adapts.
void BindConstraints(FeatureNode& feature);

/// Completes a constraint whose causes, target and test are set.
void FinishConstraint(Constraint& constraint);

} // namespace o7
