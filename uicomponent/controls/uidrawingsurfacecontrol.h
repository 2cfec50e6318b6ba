#pragma once

#include "subclassedwindow.h"
#include "uicontrol.h"

/// What the pointer looks like over a control.
enum class CursorType
{
    Default = 0,
    Hand = 1,
};

/// Base of the controls that paint a picture of their own ("STATIC", subclassed). WM_PAINT alone
/// paints; nothing is erased before, so nothing flickers.
class O7UI_API UIDrawingSurfaceControl : public UIControl,
                                         private o7::SubclassedWindow<UIDrawingSurfaceControl>
{
public:
    ~UIDrawingSurfaceControl() override;

    /// Paints the client area; called inside WM_PAINT (BeginPaint, EndPaint around it).
    virtual void draw(HWND window, HDC dc) = 0;
    /// Every message but WM_SETCURSOR, WM_PAINT and WM_ERASEBKGND.
    /// @param handled  set to true to answer the message with what is returned
    virtual LRESULT processMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                   bool& handled) = 0;

    void setCursor(CursorType type) noexcept { m_cursor = type; }

protected:
    /// @param style    added to child and notifying (SS_NOTIFY)
    /// @param visible  whether it is shown from the start
    UIDrawingSurfaceControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                            SIZE size, DWORD style, bool visible);

    /// Whether the client area is filled with the window colour before draw(), when it is to be
    /// erased; false at first.
    void setBackgroundFill(bool fill) noexcept { m_fillsBackground = fill; }

private:
    friend o7::SubclassedWindow<UIDrawingSurfaceControl>;
    static constexpr const wchar_t* kProcedureName =
        L"UIDrawingSurfaceControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uidrawingsurfacecontrol";

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void paint(HWND window);

    CursorType m_cursor = CursorType::Default;
    bool m_fillsBackground = false;
};
