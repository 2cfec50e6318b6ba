#pragma once

#include <cstdint>

#include "uidatalist.h"
#include "uimenuitembasedata.h"
#include "uimenurecords.h"

/// A run of menu items; a separator line stands between two sections.
class UIMenuSectionData
{
public:
    explicit UIMenuSectionData(const UIMenuSectionRecord& record);
    UIMenuSectionData(const UIMenuSectionData&) = delete;
    UIMenuSectionData& operator=(const UIMenuSectionData&) = delete;
    virtual ~UIMenuSectionData();

    std::uint32_t getTitle() const { return m_record->title; } ///< String number; 0: none.
    const UIDataList<UIMenuItemBaseData>& getItems() const { return m_items; }

private:
    const UIMenuSectionRecord* m_record;
    UIDataList<UIMenuItemBaseData> m_items;
};
