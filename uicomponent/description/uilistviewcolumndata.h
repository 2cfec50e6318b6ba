#pragma once

#include <cstdint>

#include "uiextrarecords.h"

/// One column of a list with columns.
class UIListViewColumnData
{
public:
    explicit UIListViewColumnData(const UIListViewColumnRecord& record) : m_record(&record) {}
    UIListViewColumnData(const UIListViewColumnData&) = delete;
    UIListViewColumnData& operator=(const UIListViewColumnData&) = delete;
    virtual ~UIListViewColumnData() = default;

    std::uint32_t getTitle() const { return m_record->title; } ///< String number.
    std::uint32_t getWidth() const { return m_record->width; } ///< Dialog units.
    bool isRightAligned() const { return m_record->rightAligned; }

private:
    const UIListViewColumnRecord* m_record;
};
