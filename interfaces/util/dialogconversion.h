#pragma once
// DialogConversion: dialog units to pixels and back.
//
// A dialog unit is a quarter of the average width, or an eighth of the height, of the dialog's
// font. The base units are asked of the dialog once, by initDialogConversions; every later
// conversion is plain arithmetic (no call to the window server) and gives what MapDialogRect gives.
// Until then the base units of the system font hold (GetDialogBaseUnits).

#include "utilapi.h"

struct HWND__;
struct tagRECT;
struct tagSIZE;

class O7UTIL_API DialogConversion
{
public:
    DialogConversion() noexcept;

    /// Takes the base units of this dialog (MapDialogRect). False, with the former units kept, when
    /// the window is not a dialog.
    bool initDialogConversions(HWND__* dialog) noexcept;

    /// Each edge is converted by itself and rounded to nearest.
    tagRECT dialogUnitsToPixels(const tagRECT& dialogUnits) const noexcept;
    tagSIZE dialogUnitsToPixels(const tagSIZE& dialogUnits) const noexcept;
    tagRECT pixelsToDialogUnits(const tagRECT& pixels) const noexcept;
    tagSIZE pixelsToDialogUnits(const tagSIZE& pixels) const noexcept;

    /// Width of 4 and height of 8 dialog units, in pixels.
    int getBaseUnitX() const noexcept { return m_baseX; }
    int getBaseUnitY() const noexcept { return m_baseY; }

private:
    int m_baseX;
    int m_baseY;
};
