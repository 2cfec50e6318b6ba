#include "uidrawingsurfacecontrol.h"

UIDrawingSurfaceControl::UIDrawingSurfaceControl(HWND parent, int id, UIServices& services,
                                                 HFONT font, POINT location, SIZE size, DWORD style,
                                                 bool visible)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(visible);
    createControlWindow(L"STATIC", style | WS_CHILD | SS_NOTIFY | (visible ? WS_VISIBLE : 0));
    subclassWindow(getHwnd());
}

UIDrawingSurfaceControl::~UIDrawingSurfaceControl()
{
    // First of all: the slots of the derived class are gone already.
    restoreProcedure();
}

LRESULT UIDrawingSurfaceControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                         LPARAM lParam)
{
    switch (message) {
    case WM_SETCURSOR:
        if (m_cursor == CursorType::Default) {
            return callSavedProcedure(window, message, wParam, lParam);
        }
        ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
        return TRUE;
    case WM_PAINT:
        paint(window);
        return 0;
    case WM_ERASEBKGND:
        return 0;
    default:
        break;
    }
    bool handled = false;
    const LRESULT result = processMessage(window, message, wParam, lParam, handled);
    return handled ? result : callSavedProcedure(window, message, wParam, lParam);
}

void UIDrawingSurfaceControl::paint(HWND window)
{
    const o7::PaintDc paint(window);
    if (paint.paint().fErase != FALSE && m_fillsBackground) {
        RECT client{};
        ::GetClientRect(window, &client);
        ::FillRect(paint.get(), &client, ::GetSysColorBrush(COLOR_WINDOW));
    }
    draw(window, paint.get());
}
