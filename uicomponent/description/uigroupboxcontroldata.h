#pragma once

#include "uicontroldata.h"

/// A frame with a caption, as a control of its own among others. (A group of molecules is a
/// molecule of kind GroupBox instead.)
class UIGroupBoxControlData : public UIControlData
{
public:
    using UIControlData::UIControlData;

    /// An empty caption leaves the frame closed at the top.
    bool hasCaption() const { return getLabel() != 0; }
};
