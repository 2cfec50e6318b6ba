#pragma once

#include "uidatalist.h"
#include "uimenusectiondata.h"

/// The menu of paper sizes, in the order that suits the people who use it: the sizes they know
/// first, the others below, envelopes last.
class PaperSizeMenuData
{
public:
    PaperSizeMenuData(const PaperSizeMenuData&) = delete;
    PaperSizeMenuData& operator=(const PaperSizeMenuData&) = delete;
    virtual ~PaperSizeMenuData() = default;

    const UIDataList<UIMenuSectionData>& getSections() const { return m_sections; }

protected:
    explicit PaperSizeMenuData(const UIRecords<UIMenuSectionRecord>& sections)
        : m_sections(o7::wrapRecords<UIMenuSectionData>(sections))
    {
    }

private:
    UIDataList<UIMenuSectionData> m_sections;
};
