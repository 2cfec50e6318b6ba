#include "uitextruler.h"

#include <algorithm>

#include "dialogconversion.h"
#include "windowtext.h"

UITextRuler::UITextRuler(HFONT font, const DialogConversion& conversion)
    : m_measure(font), m_conversion(conversion)
{
}

long UITextRuler::WidthOf(const CXString& text) const
{
    const CXString shown = o7::withoutMnemonics(text);
    // One more: converting rounds to the nearest unit, which may be less than the text needs.
    return shown.IsEmpty()
               ? 0
               : m_conversion.pixelsToDialogUnits(m_measure.measure(shown.View())).cx + 1;
}

long UITextRuler::LinesOf(const CXString& text, long width) const
{
    return width > 0 ? std::max(1L, (WidthOf(text) + width - 1) / width) : 1;
}
