#pragma once

#include "uicontroldata.h"

/// An edit field.
class UIEditControlData : public UIControlData
{
public:
    explicit UIEditControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIEditRecord>(record))
    {
    }

    std::uint32_t getLimit() const { return m_extra->limit; } ///< Most characters.
    std::uint32_t getWidth() const { return m_extra->width; } ///< Dialog units; 0: the column's.
    std::uint32_t getLines() const { return m_extra->lines; }
    bool isMultiline() const { return m_extra->lines > 1; }
    bool acceptsDigitsOnly() const { return m_extra->digitsOnly; }
    bool isPassword() const { return m_extra->password; }

private:
    const UIEditRecord* m_extra;
};
