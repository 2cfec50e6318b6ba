#pragma once

#include <cstdint>
#include <memory>

#include "datamodelids.h"
#include "uirecords.h"

/// One control of a molecule. Kinds that say more about themselves have a subclass; the plain
/// class serves the rest.
class UIControlData
{
public:
    /// The description of the class that belongs to the record's kind. A kind that no class claims
    /// gives a plain description, so a molecule keeps its controls in record order whatever
    /// happens.
    static std::unique_ptr<UIControlData> create(const UIControlRecord& record);

    explicit UIControlData(const UIControlRecord& record) : m_record(&record) {}
    UIControlData(const UIControlData&) = delete;
    UIControlData& operator=(const UIControlData&) = delete;
    virtual ~UIControlData();

    const UIControlRecord& getRecord() const { return *m_record; }

    UIControlKind getKind() const { return m_record->kind; }
    DataModelIds::tagFeatureEnum getFeature() const { return m_record->feature; }
    std::uint32_t getLabel() const { return m_record->label; } ///< String number; 0: none.
    std::uint32_t getStyle() const { return m_record->style; } ///< Window style bits to add.

protected:
    /// The record's extra record of that type, or one of defaults when it names none.
    template <class Extra> static const Extra& extraOf(const UIControlRecord& record)
    {
        static constexpr Extra kDefaults{};
        const auto* extra = std::get_if<const Extra*>(&record.extra);
        return extra != nullptr && *extra != nullptr ? **extra : kDefaults;
    }

private:
    const UIControlRecord* m_record;
};
