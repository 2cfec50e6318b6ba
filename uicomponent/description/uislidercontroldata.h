#pragma once

#include "uicontroldata.h"

/// A slider over an integer range.
class UISliderControlData : public UIControlData
{
public:
    explicit UISliderControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UISliderRecord>(record))
    {
    }

    std::int32_t getTickFrequency() const { return m_extra->tickFrequency; }
    std::int32_t getPageSize() const { return m_extra->pageSize; }
    std::uint32_t getLowLabel() const { return m_extra->lowLabel; }   ///< Under the low end.
    std::uint32_t getHighLabel() const { return m_extra->highLabel; } ///< Under the high end.

private:
    const UISliderRecord* m_extra;
};
