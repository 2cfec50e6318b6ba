#pragma once

#include "uiradiocontroldata.h"

/// A radio button that is a picture, with another picture while it is chosen.
class UIRadioImageControlData : public UIRadioControlData
{
public:
    using UIRadioControlData::UIRadioControlData;

    std::uint32_t getImage(bool selected) const
    {
        const UIRadioRecord& radio = getRadioRecord();
        return selected && radio.selectedImage != 0 ? radio.selectedImage : radio.image;
    }
};
