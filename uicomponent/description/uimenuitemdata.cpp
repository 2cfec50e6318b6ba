#include "uimenuitemdata.h"

#include "uimenusectiondata.h"

UIMenuItemData::UIMenuItemData(const UIMenuItemRecord& record)
    : m_record(&record), m_subMenu(o7::wrapRecords<UIMenuSectionData>(record.subMenu))
{
}

UIMenuItemData::~UIMenuItemData() = default;
