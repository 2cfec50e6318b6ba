#pragma once

#include "uicontroldata.h"

/// A list of fixed texts that are no values of a feature.
class UINonDataModelListControlData : public UIControlData
{
public:
    explicit UINonDataModelListControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UINonDataModelListRecord>(record))
    {
    }

    std::uint32_t getVisibleRows() const { return m_extra->visibleRows; }
    const UIRecords<std::uint32_t>& getEntries() const { return m_extra->entries; } ///< Strings.

private:
    const UINonDataModelListRecord* m_extra;
};
