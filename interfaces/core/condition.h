#pragma once

#include "conditionoptions.h"
#include "constrainablefeature.h"
#include "valset.h"

/// A question about the value of one feature: compared with a value set (with more than one value
/// in the set an order comparison must hold for all of them, equality for one; kBetween and
/// kOutside take two values, the bounds), or included in or excluded from the set.
class Condition
{
public:
    Condition(const ConstrainableFeature& feature, DataModelIds::tagComparisonEnum comparison,
              const ValSet& values, const ConditionOptions& options = {})
        : m_feature(feature), m_values(values), m_comparison(comparison), m_options(options)
    {
    }
    Condition(const ConstrainableFeature& feature,
              DataModelIds::tagSetIncludeOrExcludeEnum membership, const ValSet& values,
              const ConditionOptions& options = {})
        : m_feature(feature),
          m_values(values),
          m_comparison(membership == DataModelIds::kInclude ? DataModelIds::kEqual
                                                            : DataModelIds::kNotEqual),
          m_options(options)
    {
    }

    const FeatureIdWithContext& GetFeature() const { return m_feature.GetFeatureIdWithContext(); }
    /// kEqual means "one of the set", kNotEqual "none of the set".
    DataModelIds::tagComparisonEnum GetComparison() const { return m_comparison; }
    const ValSet& GetValues() const { return m_values; }
    const ConditionOptions& GetOptions() const { return m_options; }

private:
    ConstrainableFeature m_feature;
    ValSet m_values;
    DataModelIds::tagComparisonEnum m_comparison;
    ConditionOptions m_options;
};
