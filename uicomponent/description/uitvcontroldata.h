#pragma once

#include <cstdint>
#include <memory>

#include "uitvrecords.h"

/// One item of a page that the system shows as a tree of settings.
class UITvControlData
{
public:
    /// The description of the class that belongs to the record's kind; a bare item for a kind that
    /// no class claims.
    static std::unique_ptr<UITvControlData> create(const UITvControlRecord& record);

    explicit UITvControlData(const UITvControlRecord& record) : m_record(&record) {}
    UITvControlData(const UITvControlData&) = delete;
    UITvControlData& operator=(const UITvControlData&) = delete;
    virtual ~UITvControlData();

    const UITvControlRecord& getRecord() const { return *m_record; }

    UITvControlKind getKind() const { return m_record->kind; }
    DataModelIds::tagFeatureEnum getFeature() const { return m_record->feature; }
    std::uint32_t getLabel() const { return m_record->label; } ///< String number.
    std::uint32_t getIcon() const { return m_record->icon; }   ///< 0: the system's choice.

private:
    const UITvControlRecord* m_record;
};
