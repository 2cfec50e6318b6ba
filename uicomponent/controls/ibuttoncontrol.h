#pragma once

#include "cxstring.h"
#include "uiapi.h"

#include <windows.h>

class UIControl;

/// A push button of any look. Fronts the UIControl that it is a part of.
class O7UI_API IButtonControl
{
public:
    virtual ~IButtonControl() = default;
    virtual CXString getButtonDisplayName() = 0;
    /// The room that the button has for its text.
    virtual SIZE getTextAreaInPixels() = 0;
    virtual void setButtonDisplayName(const CXString& name) const = 0;
    virtual void dump() const = 0;
    virtual HWND getHwnd() const = 0;
    virtual SIZE getDimensionInPixels() = 0;
    virtual int getId() const = 0;

    /// Moves by a difference in dialog units.
    void move(POINT delta);
    void setShow(bool show);
    void setEnable(bool enable);

    UIControl* getControlPtr() const noexcept { return m_control; }

protected:
    IButtonControl() = default;
    IButtonControl(const IButtonControl&) = default;
    IButtonControl& operator=(const IButtonControl&) = default;
    void setControl(UIControl* control) noexcept { m_control = control; }

private:
    UIControl* m_control = nullptr;
};
