#include "uicontainerdata.h"

UIContainerData::UIContainerData(const UIContainerRecord& record, std::uint32_t modeValue)
    : m_record(&record),
      m_columns(o7::wrapRecords<UIColumnData>(record.columns, modeValue)),
      m_dialogActions(o7::wrapRecords<UIDialogActionData>(record.dialogActions)),
      m_simpleFeatures(o7::wrapRecords<UISimpleFeatureData>(record.simpleFeatures)),
      m_featureObservers(o7::wrapRecords<UIFeatureObserverData>(record.featureObservers))
{
}

UIContainerData::~UIContainerData() = default;
