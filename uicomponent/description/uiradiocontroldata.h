#pragma once

#include "uicontroldata.h"

/// A radio button: one value of an option feature.
class UIRadioControlData : public UIControlData
{
public:
    explicit UIRadioControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIRadioRecord>(record))
    {
    }

    DataModelIds::tagValueEnum getValue() const { return m_extra->value; }

protected:
    const UIRadioRecord& getRadioRecord() const { return *m_extra; }

private:
    const UIRadioRecord* m_extra;
};
