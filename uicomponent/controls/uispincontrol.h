#pragma once

#include "uicontrol.h"

/// A pair of arrows that counts up and down ("msctls_updown32"). It does not write into its buddy
/// by itself: the owner hears of each step (UDN_DELTAPOS) and shows the number in its own way.
///
/// A style of the caller with UDS_SETBUDDYINT, without the default style, does write; then every
/// position set from code reaches the parent as the buddy's EN_CHANGE, as Windows cannot keep that
/// quiet: ignore it while filling.
class O7UI_API UISpinControl : public UIControl
{
public:
    /// @param style            added to WS_VISIBLE
    /// @param defaultStyle     a bordered child that arrow keys reach; UDS_SETBUDDYINT and
    ///                         UDS_AUTOBUDDY are then taken out of the caller's style
    /// @param minimum,maximum  ends of the range, both included; a minimum above the maximum makes
    ///                         the upper arrow count down
    UISpinControl(HWND parent, int id, UIServices& services, HFONT font, POINT location, SIZE size,
                  DWORD style, bool defaultStyle, int minimum, int maximum);
    ~UISpinControl() override;

    void dump() const override;

    int getPosition() const;
    /// UDM_SETPOS32; the position stays within the range. Nothing happens when it is there already.
    void setPosition(int position);
    void setRange(int minimum, int maximum);
    /// The edit that takes the arrow keys; borrowed, may be null. With UDS_ALIGNLEFT or
    /// UDS_ALIGNRIGHT in the style the arrows take their place in it, and it shrinks.
    void setBuddy(HWND buddy);
};
