#pragma once

#include "uirecords.h"

/// A feature that belongs to a page although no control shows it.
class UISimpleFeatureData
{
public:
    explicit UISimpleFeatureData(const UISimpleFeatureRecord& record) : m_record(&record) {}
    UISimpleFeatureData(const UISimpleFeatureData&) = delete;
    UISimpleFeatureData& operator=(const UISimpleFeatureData&) = delete;
    virtual ~UISimpleFeatureData() = default;

    DataModelIds::tagFeatureEnum getFeature() const { return m_record->feature; }

private:
    const UISimpleFeatureRecord* m_record;
};
