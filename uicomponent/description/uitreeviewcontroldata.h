#pragma once

#include "uicontroldata.h"

/// A tree of items.
class UITreeViewControlData : public UIControlData
{
public:
    explicit UITreeViewControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UITreeViewRecord>(record))
    {
    }

    std::uint32_t getVisibleRows() const { return m_extra->visibleRows; }
    bool hasLines() const { return m_extra->hasLines; }

private:
    const UITreeViewRecord* m_extra;
};
