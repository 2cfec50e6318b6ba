#pragma once

#include "uispincontroldata.h"

/// A length with up and down arrows: its step, digits and unit text follow the user's units.
class UIDimensionSpinControlData : public UISpinControlData
{
public:
    explicit UIDimensionSpinControlData(const UIControlRecord& record)
        : UISpinControlData(record), m_extra(&extraOf<UIDimensionSpinRecord>(record))
    {
    }

    std::int32_t getIncrement(bool metric) const override;
    std::int32_t getDigits(bool metric) const override;
    std::uint32_t getUnitLabel(bool metric) const override;

private:
    const UIDimensionSpinRecord* m_extra;
};
