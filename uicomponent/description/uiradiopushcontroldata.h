#pragma once

#include "uiradiocontroldata.h"

/// A radio button that looks like a push button and stays down while chosen. It shows a picture
/// when the record names one, else its text.
class UIRadioPushControlData : public UIRadioControlData
{
public:
    using UIRadioControlData::UIRadioControlData;

    bool hasImage() const { return getRadioRecord().image != 0; }
    std::uint32_t getImage() const { return getRadioRecord().image; }
};
