#pragma once

#include "uirecords.h"

/// One push button in the bottom row of a dialog.
class UIDialogActionData
{
public:
    explicit UIDialogActionData(const UIDialogActionRecord& record) : m_record(&record) {}
    UIDialogActionData(const UIDialogActionData&) = delete;
    UIDialogActionData& operator=(const UIDialogActionData&) = delete;
    virtual ~UIDialogActionData() = default;

    UIDialogActionKind getKind() const { return m_record->kind; }
    std::uint32_t getLabel() const { return m_record->label; } ///< String number.
    bool isDefault() const { return m_record->isDefault; }

    /// The window number of the button. The numbers are those of the system's own buttons (OK 1,
    /// Cancel 2, Help 9), so that Enter and Escape find them.
    std::uint32_t getControlId() const { return static_cast<std::uint32_t>(m_record->kind); }
    bool endsDialog() const { return m_record->kind != UIDialogActionKind::Help; }

private:
    const UIDialogActionRecord* m_record;
};
