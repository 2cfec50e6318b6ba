#pragma once

#include "datamodelids.h"

/// What changed about a feature: its value, or its constraint state.
class FeatureChangeId
{
public:
    explicit constexpr FeatureChangeId(DataModelIds::FeatureChangeEnum number) : m_number(number) {}

    constexpr DataModelIds::FeatureChangeEnum GetFeatureChangeEnum() const { return m_number; }

    friend constexpr bool operator==(FeatureChangeId a, FeatureChangeId b)
    {
        return a.m_number == b.m_number;
    }
    friend constexpr bool operator!=(FeatureChangeId a, FeatureChangeId b) { return !(a == b); }

private:
    DataModelIds::FeatureChangeEnum m_number;
};
