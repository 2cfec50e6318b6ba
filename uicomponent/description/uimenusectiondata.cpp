#include "uimenusectiondata.h"

UIMenuSectionData::UIMenuSectionData(const UIMenuSectionRecord& record) : m_record(&record)
{
    m_items.reserve(record.items.size());
    for (const UIMenuItemRecord& item : record.items)
        m_items.push_back(UIMenuItemBaseData::create(item));
}

UIMenuSectionData::~UIMenuSectionData() = default;
