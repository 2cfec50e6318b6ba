#pragma once

#include "uicontrol.h"

class CXString;

/// One of several choices that exclude each other ("BUTTON"). It does not check itself: a click, an
/// arrow key within the group or its mnemonic sends BN_CLICKED, and the owner then calls setCheck
/// for every button of the group. Tab stops at the checked button, as Windows moves WS_TABSTOP
/// along with the check; while none is checked, only the style of the caller makes the group
/// reachable.
class O7UI_API UIRadioButtonControl : public UIControl
{
public:
    /// @param style  added to a visible BS_RADIOBUTTON; the first button of a group needs WS_GROUP
    ///               and WS_TABSTOP, and so does whatever follows the group
    UIRadioButtonControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                         SIZE size, DWORD style);
    ~UIRadioButtonControl() override;

    void dump() const override;

    /// Sets the text; "&" marks the mnemonic, "&&" is an ampersand. Nothing is repainted when the
    /// button shows that text already.
    void setText(const CXString& text);

    /// BST_UNCHECKED or BST_CHECKED.
    int getCheck() const;
    /// Shows the state without a notification; nothing happens when it is shown already.
    void setCheck(int state);
};
