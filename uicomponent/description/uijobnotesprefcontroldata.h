#pragma once

#include "uicontroldata.h"

/// The preferences of the notes that travel with a job.
class UIJobNotesPrefControlData : public UIControlData
{
public:
    explicit UIJobNotesPrefControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIJobNotesPrefRecord>(record))
    {
    }

    std::uint32_t getLimit() const { return m_extra->limit; } ///< Most characters of a note.
    std::uint32_t getLines() const { return m_extra->lines; }

private:
    const UIJobNotesPrefRecord* m_extra;
};
