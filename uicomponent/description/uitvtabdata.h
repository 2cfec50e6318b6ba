#pragma once

#include <cstdint>

#include "uidatalist.h"
#include "uitvcontroldata.h"
#include "uitvrecords.h"

/// A page that the system shows as a tree of settings.
class UITvTabData
{
public:
    explicit UITvTabData(const UITvTabRecord& record);
    UITvTabData(const UITvTabData&) = delete;
    UITvTabData& operator=(const UITvTabData&) = delete;
    virtual ~UITvTabData();

    std::uint32_t getTitle() const { return m_record->title; } ///< String number.
    const UIDataList<UITvControlData>& getControls() const { return m_controls; }

private:
    const UITvTabRecord* m_record;
    UIDataList<UITvControlData> m_controls;
};
