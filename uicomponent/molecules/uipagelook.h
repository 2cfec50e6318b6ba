#pragma once

#include "uihandles.h"

/// How a page or dialog is drawn at present; one for each container, shared by its molecules.
class UIPageLook
{
public:
    /// Whether visual themes are on; as of the last themeChanged.
    bool isThemed() const { return m_themed; }
    /// A solid brush of the system's window colour (COLOR_WINDOW), made at its first use.
    /// Borrowed; gone with the next coloursChanged.
    HBRUSH getWindowBrush();

    /// For WM_SYSCOLORCHANGE.
    void coloursChanged() { m_windowBrush.reset(); }
    /// Asks the system; for a new page, and for WM_THEMECHANGED.
    void themeChanged();

private:
    o7::UniqueBrush m_windowBrush;
    bool m_themed = false;
};
