#pragma once

#include "uicontrol.h"

/// A check box that changes its own state when it is clicked ("BUTTON").
class O7UI_API UICheckBoxControl : public UIControl
{
public:
    /// @param threeState  also knows the indeterminate state
    UICheckBoxControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                      SIZE size, bool threeState);
    ~UICheckBoxControl() override;

    void dump() const override;

    /// Lets the text take as many lines as the control is high, beginning beside the mark.
    void setMultiline();

    /// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int getCheck() const;
    /// Shows the state without a notification; nothing happens when it is shown already. Also a box
    /// of two states can show BST_INDETERMINATE: it then has three until it shows another one.
    void setCheck(int state);

private:
    bool m_threeState;
};
