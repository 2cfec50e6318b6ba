#pragma once

#include <windows.h>

class UIPageLook;

/// The window on which molecules create their controls, with what each of them needs of it.
struct UIPageWindow
{
    HWND window = nullptr;
    HFONT font = nullptr;       ///< the dialog font; owned by the dialog
    HFONT boldFont = nullptr;   ///< owned by the container
    UIPageLook* look = nullptr; ///< owned by the container; null only where there is no page
    int nextId = kFirstId;      ///< child-window id of the next control

    int takeId() { return nextId++; }

    static constexpr int kFirstId = 1000;
};
