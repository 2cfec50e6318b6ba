#pragma once

#include <cstdint>

#include "uidatalist.h"
#include "uimoleculedata.h"
#include "uirecords.h"

/// One column of a page, with its molecules from top to bottom.
class UIColumnData
{
public:
    UIColumnData(const UIColumnRecord& record, std::uint32_t modeValue);
    UIColumnData(const UIColumnData&) = delete;
    UIColumnData& operator=(const UIColumnData&) = delete;
    virtual ~UIColumnData();

    const UIColumnRecord& getRecord() const { return *m_record; }

    std::int32_t getX() const { return m_record->x; }         ///< Dialog units.
    std::int32_t getWidth() const { return m_record->width; } ///< Dialog units.
    /// Room for labels beside their boxes, in dialog units; 0: labels stand above the boxes.
    std::int32_t getLabelWidth() const { return m_record->labelWidth; }

    const UIDataList<UIMoleculeData>& getMolecules() const { return m_molecules; }

private:
    const UIColumnRecord* m_record;
    UIDataList<UIMoleculeData> m_molecules;
};
