#include "uiimagecontroldata.h"

UIImageControlData::UIImageControlData(const UIControlRecord& record)
    : UIControlData(record),
      m_extra(&extraOf<UIImageRecord>(record)),
      m_valueImages(o7::wrapRecords<UIOptionData>(m_extra->valueImages))
{
}

std::uint32_t UIImageControlData::getImage(DataModelIds::tagValueEnum value) const
{
    for (const auto& option : m_valueImages) {
        if (option->getValue() == value)
            return option->getImage();
    }
    return m_extra->image;
}
