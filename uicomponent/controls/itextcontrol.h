#pragma once

#include "cxstring.h"
#include "uiapi.h"

#include <windows.h>

class UIControl;

/// A control that shows a text. Fronts the UIControl that it is a part of.
class O7UI_API ITextControl
{
public:
    virtual ~ITextControl() = default;
    virtual void clearText() const = 0;
    /// Switches between the parent's font and the bold one.
    virtual void boldText(bool bold) = 0;
    virtual void dump() const = 0;
    virtual HWND getHwnd() const = 0;
    virtual SIZE getDimensionInPixels() = 0;
    virtual int getId() const = 0;

    /// The text (GetDlgItemTextW of the parent); at most 259 characters, the rest is cut.
    CXString getText() const;
    /// Sets the text (SetDlgItemTextW of the parent), unless the control shows it already.
    void setText(const CXString& text);
    /// Moves by a difference in dialog units.
    void move(POINT delta);
    void setShow(bool show);
    void setEnable(bool enable);

    UIControl* getControlPtr() const noexcept { return m_control; }

protected:
    ITextControl() = default;
    ITextControl(const ITextControl&) = default;
    ITextControl& operator=(const ITextControl&) = default;
    void setControl(UIControl* control) noexcept { m_control = control; }

private:
    UIControl* m_control = nullptr;
};
