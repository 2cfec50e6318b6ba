#pragma once

#include "uirecords.h"

/// A feature whose change makes the whole page report a button action to the data model.
class UIFeatureObserverData
{
public:
    explicit UIFeatureObserverData(const UIFeatureObserverRecord& record) : m_record(&record) {}
    UIFeatureObserverData(const UIFeatureObserverData&) = delete;
    UIFeatureObserverData& operator=(const UIFeatureObserverData&) = delete;
    virtual ~UIFeatureObserverData() = default;

    DataModelIds::tagFeatureEnum getFeature() const { return m_record->feature; }
    std::uint32_t getAction() const { return m_record->action; }

private:
    const UIFeatureObserverRecord* m_record;
};
