#pragma once

#include <cstdint>

#include "uiextrarecords.h"

/// What one value of an option feature looks like where its display string is not enough.
class UIOptionData
{
public:
    explicit UIOptionData(const UIOptionRecord& record) : m_record(&record) {}
    UIOptionData(const UIOptionData&) = delete;
    UIOptionData& operator=(const UIOptionData&) = delete;
    virtual ~UIOptionData() = default;

    DataModelIds::tagValueEnum getValue() const { return m_record->value; }
    std::uint32_t getLabel() const { return m_record->label; } ///< 0: the model's display string.
    std::uint32_t getImage() const { return m_record->image; } ///< 0: none.

private:
    const UIOptionRecord* m_record;
};
