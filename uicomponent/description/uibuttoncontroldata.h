#pragma once

#include "uicontroldata.h"

/// A push button with a text.
class UIButtonControlData : public UIControlData
{
public:
    explicit UIButtonControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIButtonRecord>(record))
    {
    }

    std::uint32_t getAction() const { return m_extra->action; } ///< 0: reports nothing.
    DialogId getDialog() const { return m_extra->dialog; }      ///< 0: opens nothing.
    bool isDefault() const { return m_extra->isDefault; }

private:
    const UIButtonRecord* m_extra;
};
