#pragma once

#include "uicontroldata.h"

/// A closed list of a feature's options.
class UIComboControlData : public UIControlData
{
public:
    explicit UIComboControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIComboRecord>(record))
    {
    }

    std::uint32_t getMinimumHeight() const { return m_extra->minimumHeight; } ///< Dialog units.
    UIDisabledOptions getDisabledOptions() const { return m_extra->disabledOptions; }

private:
    const UIComboRecord* m_extra;
};
