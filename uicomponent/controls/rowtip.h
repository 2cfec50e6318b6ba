#pragma once

#include "uitooltips.h"

#include <windows.h>

class CXString;

namespace o7 {

/// The tip of one row of a list, shown and hidden by the list itself, in the tip window of its
/// page. It is a tool of that window only while it is shown.
class RowTip
{
public:
    explicit RowTip(UIToolTips& toolTips) noexcept : m_toolTips(toolTips) {}
    ~RowTip() { hide(); }
    RowTip(const RowTip&) = delete;
    RowTip& operator=(const RowTip&) = delete;

    bool isShown() const noexcept { return m_list != nullptr; }
    /// Shows the text below the area, or above it where the screen ends; it begins at x, in a
    /// mirrored list at its right end. An empty text shows nothing.
    /// @param row  area of the row, in pixels of the list's client area, as is x
    void show(HWND list, const RECT& row, int x, const CXString& text);
    void hide() noexcept;

    /// Milliseconds that the mouse has to rest; less while another row's tip is shown.
    DWORD restingTime() const noexcept;

private:
    UIToolTips& m_toolTips;
    HWND m_list = nullptr; ///< whose tip is shown
};

} // namespace o7
