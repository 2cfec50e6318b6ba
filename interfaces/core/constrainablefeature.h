#pragma once

#include "featureidwithcontext.h"

/// A feature as one side of a constraint.
class ConstrainableFeature
{
public:
    // Implicit on purpose: constraints read as a list of features and values.
    ConstrainableFeature(const FeatureIdWithContext& feature) : m_feature(feature) {}
    ConstrainableFeature(DataModelIds::tagFeatureEnum feature) : m_feature(FeatureId(feature)) {}

    const FeatureIdWithContext& GetFeatureIdWithContext() const { return m_feature; }

private:
    FeatureIdWithContext m_feature;
};
