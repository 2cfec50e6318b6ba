#pragma once

#include "uicontroldata.h"

/// A list whose items the user adds, edits and removes.
class UIEditableListControlData : public UIControlData
{
public:
    explicit UIEditableListControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIEditableListRecord>(record))
    {
    }

    std::uint32_t getMaximumItems() const { return m_extra->maximumItems; }
    std::uint32_t getItemLimit() const { return m_extra->itemLimit; } ///< Characters of one item.

private:
    const UIEditableListRecord* m_extra;
};
