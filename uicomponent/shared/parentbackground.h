#pragma once

#include <windows.h>

namespace o7 {

/// Lets the parent paint what lies behind a child window (WM_ERASEBKGND to the parent): the themed
/// page's texture, or its plain colour. For controls whose own drawing leaves corners or a ground
/// free. Nothing happens for a window without a parent.
///
/// @param window  the child whose client area the DC paints
void drawParentBackground(HWND window, HDC dc) noexcept;

} // namespace o7
