#include "uicolumndata.h"

UIColumnData::UIColumnData(const UIColumnRecord& record, std::uint32_t modeValue)
    : m_record(&record), m_molecules(o7::wrapRecords<UIMoleculeData>(record.molecules, modeValue))
{
}

UIColumnData::~UIColumnData() = default;
