#include "uitvtabdata.h"

UITvTabData::UITvTabData(const UITvTabRecord& record) : m_record(&record)
{
    m_controls.reserve(record.controls.size());
    for (const UITvControlRecord& control : record.controls)
        m_controls.push_back(UITvControlData::create(control));
}

UITvTabData::~UITvTabData() = default;
