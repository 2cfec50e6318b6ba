#pragma once

#include "uicontroldata.h"

/// An open list of a feature's options.
class UIListControlData : public UIControlData
{
public:
    explicit UIListControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIListRecord>(record))
    {
    }

    std::uint32_t getVisibleRows() const { return m_extra->visibleRows; }
    UIDisabledOptions getDisabledOptions() const { return m_extra->disabledOptions; }

private:
    const UIListRecord* m_extra;
};
