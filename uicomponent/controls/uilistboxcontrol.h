#pragma once

#include "uientrylistcontrol.h"

/// An open list of choices ("LISTBOX").
class O7UI_API UIListBoxControl : public UIEntryListControl
{
public:
    /// @param style     added to WS_VISIBLE (LBS_... bits; all that it needs, unless bordered)
    /// @param bordered  a child with border and scroll bar that Tab stops at, that tells its
    /// parent,
    ///                  and whose entries the control draws
    UIListBoxControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                     SIZE size, DWORD style, bool bordered);
    ~UIListBoxControl() override;

    void dump() const override;

    using UIEntryListControl::dump;

protected:
    HWND entryWindow() const override { return UIControl::getHwnd(); }
    bool isOpen() const override { return true; }
    void notifySelected() override;
    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) override;
};
