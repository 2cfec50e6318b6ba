#pragma once

#include "uicontroldata.h"

/// A text that sums up what a list of features is set to.
class UISummaryControlData : public UIControlData
{
public:
    explicit UISummaryControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UISummaryRecord>(record))
    {
    }

    std::uint32_t getLines() const { return m_extra->lines; }
    /// In the order in which they are told.
    const UIRecords<DataModelIds::tagFeatureEnum>& getFeatures() const { return m_extra->features; }

private:
    const UISummaryRecord* m_extra;
};
