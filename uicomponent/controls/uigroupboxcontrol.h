#pragma once

#include "uicontrol.h"

/// A frame with a caption around related controls ("BUTTON").
class O7UI_API UIGroupBoxControl : public UIControl
{
public:
    UIGroupBoxControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                      SIZE size, const CXString& caption);
    ~UIGroupBoxControl() override;

    void dump() const override;

    /// Changes the caption; nothing is repainted when the frame shows it already.
    void setCaption(const CXString& caption);
};
