#pragma once

#include "constrainablefeature.h"
#include "valset.h"

/// A feature together with a value of it, for writing a constraint as pairs: the feature given by
/// number or id, the value by enum, id, whole number, text, boolean or length.
class FeatureFactory
{
public:
    FeatureFactory(const ConstrainableFeature& feature, const ValueFactory& value)
        : m_feature(feature), m_value(value)
    {
    }

    const ConstrainableFeature& GetFeature() const { return m_feature; }
    const ValueFactory& GetValue() const { return m_value; }

private:
    ConstrainableFeature m_feature;
    ValueFactory m_value;
};
