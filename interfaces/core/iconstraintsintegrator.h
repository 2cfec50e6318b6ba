#pragma once

#include "constraintmkii.h"

#include <vector>

/// Takes constraints that are added to a data model after it was created.
class IConstraintsIntegrator
{
public:
    virtual ~IConstraintsIntegrator() = default;

    /// False, and nothing added, when one of the features does not exist in this product, nothing
    /// is forbidden, or a clearing constraint would go round in a circle with those there are.
    virtual bool AddConstraint(const ConstraintMkII& constraint) = 0;

    /// The same with several conditions that must all hold before `mustNotHold` is forbidden.
    virtual bool AddConstraint(const std::vector<Condition>& when, const Condition& mustNotHold,
                               const ConstraintMkIIOptions& options) = 0;
};
