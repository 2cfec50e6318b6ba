#pragma once

#include "uicontroldata.h"
#include "uidatalist.h"
#include "uimenusectiondata.h"

/// A button that opens a menu.
class UIMenuControlData : public UIControlData
{
public:
    explicit UIMenuControlData(const UIControlRecord& record)
        : UIControlData(record),
          m_sections(o7::wrapRecords<UIMenuSectionData>(extraOf<UIMenuRecord>(record).sections))
    {
    }

    const UIDataList<UIMenuSectionData>& getSections() const { return m_sections; }

private:
    UIDataList<UIMenuSectionData> m_sections;
};
