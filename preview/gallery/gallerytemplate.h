#pragma once

#include <windows.h>

#include <vector>

namespace o7 {

/// A dialog without controls, as the system's dialog functions take it.
class GalleryTemplate
{
public:
    /// @param location,size  dialog units
    /// @param pointSize      of the font, from which all sizes follow
    GalleryTemplate(DWORD style, DWORD exStyle, POINT location, SIZE size, WORD pointSize);

    /// Creates the dialog; null when the system refuses. `parameter` comes with WM_INITDIALOG.
    HWND create(HWND parent, DLGPROC procedure, void* parameter) const;

private:
    std::vector<WORD> m_words;
};

} // namespace o7
