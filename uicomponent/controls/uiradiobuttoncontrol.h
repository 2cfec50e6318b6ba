#pragma once

#include "mortal.h"
#include "subclassedwindow.h"
#include "uicontrol.h"
#include "uihandles.h"

class CXString;

/// One of several choices that exclude each other ("BUTTON"). It does not check itself: a click,
/// its mnemonic or an arrow key within the group sends BN_CLICKED, and the owner then calls
/// setCheck for each button of the group. Tab stops at the button that was checked last; before
/// that, at the one that the caller's style says.
class O7UI_API UIRadioButtonControl : public UIControl,
                                      private o7::SubclassedWindow<UIRadioButtonControl>
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

    /// Shows pictures of the module's resources in place of the text, which screen readers go on
    /// saying. They are shown with the next setCheck. Once only; without the first the text stays.
    /// @param picture,checkedPicture  resource numbers; 0 for the second: the same picture
    void setPictures(int picture, int checkedPicture);

    /// BST_UNCHECKED or BST_CHECKED.
    int getCheck() const;
    /// Shows the state without a notification; nothing happens when it is shown already.
    void setCheck(int state);
    /// Whether Tab stops here. Of a group that is one button: the checked one, or another while
    /// that cannot be reached.
    void setTabStop(bool stops);

private:
    friend o7::SubclassedWindow<UIRadioButtonControl>;
    static constexpr const wchar_t* kProcedureName =
        L"UIRadioButtonControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uiradiobuttoncontrol";

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void showPicture();

    o7::Mortal m_life;
    o7::UniqueIcon m_picture;
    o7::UniqueIcon m_checkedPicture;
    HICON m_shownPicture = nullptr;
};
