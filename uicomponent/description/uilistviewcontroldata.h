#pragma once

#include "uicontroldata.h"
#include "uidatalist.h"
#include "uilistviewcolumndata.h"

/// A list with columns.
class UIListViewControlData : public UIControlData
{
public:
    explicit UIListViewControlData(const UIControlRecord& record)
        : UIControlData(record),
          m_extra(&extraOf<UIListViewRecord>(record)),
          m_columns(o7::wrapRecords<UIListViewColumnData>(m_extra->columns))
    {
    }

    std::uint32_t getVisibleRows() const { return m_extra->visibleRows; }
    const UIDataList<UIListViewColumnData>& getColumns() const { return m_columns; }

private:
    const UIListViewRecord* m_extra;
    UIDataList<UIListViewColumnData> m_columns;
};
