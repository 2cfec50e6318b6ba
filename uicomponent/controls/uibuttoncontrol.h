#pragma once

#include "ibuttoncontrol.h"
#include "uicontrol.h"

/// A push button ("BUTTON").
class O7UI_API UIButtonControl : public UIControl, public IButtonControl
{
public:
    /// @param isDefault  the button that Enter presses
    UIButtonControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                    SIZE size, bool isDefault);
    ~UIButtonControl() override;

    bool handleMessage(const _UIWindowsMessage& message) override;

    CXString getButtonDisplayName() override;
    /// The control's size, less 4 dialog units of its width.
    SIZE getTextAreaInPixels() override;
    /// Shows the name as it is: an ampersand stays one and makes no mnemonic.
    void setButtonDisplayName(const CXString& name) const override;
    void dump() const override;
    HWND getHwnd() const override { return UIControl::getHwnd(); }
    SIZE getDimensionInPixels() override { return UIControl::getDimensionInPixels(); }
    int getId() const override { return UIControl::getId(); }

    using UIControl::move;
    using UIControl::setEnable;
    using UIControl::setShow;
};
