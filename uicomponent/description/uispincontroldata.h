#pragma once

#include "uicontroldata.h"

/// A number with up and down arrows. How it is counted and shown may depend on the units the user
/// works in; a plain number does not care.
class UISpinControlData : public UIControlData
{
public:
    explicit UISpinControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UISpinRecord>(record))
    {
    }

    /// One step of the arrows, counted in the last digit shown.
    virtual std::int32_t getIncrement(bool metric) const;
    /// Digits after the decimal separator.
    virtual std::int32_t getDigits(bool metric) const;
    /// String number of the text behind the box; 0: none.
    virtual std::uint32_t getUnitLabel(bool metric) const;

private:
    const UISpinRecord* m_extra;
};
