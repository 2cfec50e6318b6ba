#pragma once

#include "uicontroldata.h"
#include "uidatalist.h"
#include "uioptiondata.h"

/// A picture, which may mirror a feature: it then changes with the feature's value.
class UIImageControlData : public UIControlData
{
public:
    explicit UIImageControlData(const UIControlRecord& record);

    std::uint32_t getMinimumHeight() const { return m_extra->minimumHeight; } ///< Dialog units.
    /// The picture for that value, or the general one when none is listed for it.
    std::uint32_t getImage(DataModelIds::tagValueEnum value) const;
    const UIDataList<UIOptionData>& getValueImages() const { return m_valueImages; }

private:
    const UIImageRecord* m_extra;
    UIDataList<UIOptionData> m_valueImages;
};
