#pragma once

#include "uicontroldata.h"

/// A text that opens one of the product's web links.
class UIHyperlinkTextControlData : public UIControlData
{
public:
    explicit UIHyperlinkTextControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIHyperlinkTextRecord>(record))
    {
    }

    std::uint32_t getLinkNumber() const { return m_extra->linkNumber; }

private:
    const UIHyperlinkTextRecord* m_extra;
};
