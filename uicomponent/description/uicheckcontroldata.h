#pragma once

#include "uicontroldata.h"

/// A check box, bound to a boolean feature or to two values of an option feature.
class UICheckControlData : public UIControlData
{
public:
    explicit UICheckControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UICheckRecord>(record))
    {
    }

    bool isBoolean() const { return m_extra->checkedValue == DataModelIds::kNoValue; }
    DataModelIds::tagValueEnum getCheckedValue() const { return m_extra->checkedValue; }
    DataModelIds::tagValueEnum getUncheckedValue() const { return m_extra->uncheckedValue; }
    bool isThreeState() const { return m_extra->threeState; }
    bool secondTextToggles() const { return m_extra->secondTextToggles; }

private:
    const UICheckRecord* m_extra;
};
