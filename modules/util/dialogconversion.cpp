#include "dialogconversion.h"

#include <windows.h>

namespace {

// What MapDialogRect itself divides by.
constexpr int kUnitsX = 4;
constexpr int kUnitsY = 8;

} // namespace

DialogConversion::DialogConversion() noexcept
{
    const LONG systemBase = GetDialogBaseUnits();
    m_baseX = LOWORD(systemBase);
    m_baseY = HIWORD(systemBase);
}

bool DialogConversion::initDialogConversions(HWND__* dialog) noexcept
{
    RECT base = {0, 0, kUnitsX, kUnitsY};
    if (dialog == nullptr || MapDialogRect(dialog, &base) == FALSE || base.right <= 0 ||
        base.bottom <= 0) {
        return false;
    }
    m_baseX = base.right;
    m_baseY = base.bottom;
    return true;
}

tagRECT DialogConversion::dialogUnitsToPixels(const tagRECT& dialogUnits) const noexcept
{
    return {MulDiv(dialogUnits.left, m_baseX, kUnitsX), MulDiv(dialogUnits.top, m_baseY, kUnitsY),
            MulDiv(dialogUnits.right, m_baseX, kUnitsX),
            MulDiv(dialogUnits.bottom, m_baseY, kUnitsY)};
}

tagSIZE DialogConversion::dialogUnitsToPixels(const tagSIZE& dialogUnits) const noexcept
{
    return {MulDiv(dialogUnits.cx, m_baseX, kUnitsX), MulDiv(dialogUnits.cy, m_baseY, kUnitsY)};
}

tagRECT DialogConversion::pixelsToDialogUnits(const tagRECT& pixels) const noexcept
{
    return {MulDiv(pixels.left, kUnitsX, m_baseX), MulDiv(pixels.top, kUnitsY, m_baseY),
            MulDiv(pixels.right, kUnitsX, m_baseX), MulDiv(pixels.bottom, kUnitsY, m_baseY)};
}

tagSIZE DialogConversion::pixelsToDialogUnits(const tagSIZE& pixels) const noexcept
{
    return {MulDiv(pixels.cx, kUnitsX, m_baseX), MulDiv(pixels.cy, kUnitsY, m_baseY)};
}
