#pragma once

#include "uicontroldata.h"

/// The list of settings used most recently.
class UIMRUControlData : public UIControlData
{
public:
    explicit UIMRUControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIMRURecord>(record))
    {
    }

    std::uint32_t getCapacity() const { return m_extra->capacity; } ///< The oldest leaves first.

private:
    const UIMRURecord* m_extra;
};
