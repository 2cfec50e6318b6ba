#pragma once

#include "uicontroldata.h"

/// A label or a paragraph of text.
class UITextControlData : public UIControlData
{
public:
    explicit UITextControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UITextRecord>(record))
    {
    }

    std::uint32_t getLines() const { return m_extra->lines; } ///< Lines of room.
    bool isBold() const { return m_extra->bold; }

private:
    const UITextRecord* m_extra;
};
