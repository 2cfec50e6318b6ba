#include "uitextruler.h"

#include <algorithm>

#include "dialogconversion.h"
#include "textmeasure.h"
#include "windowtext.h"

namespace {

constexpr LONG kDrawnWider =
    50; // some displays draw wider than they measure: one part of that many

} // namespace

UITextRuler::UITextRuler(const o7::TextMeasure& measure, const DialogConversion& conversion)
    : m_measure(measure), m_conversion(conversion)
{
}

UITextRuler UITextRuler::ForColumn(const UIColumnFit& fit) const
{
    UITextRuler ruler(m_measure, m_conversion);
    ruler.m_fit = fit;
    return ruler;
}

long UITextRuler::WidthOf(const CXString& text) const
{
    const CXString shown = o7::withoutMnemonics(text);
    if (shown.IsEmpty())
        return 0;
    const LONG drawn = m_measure.measure(shown.View()).cx;
    // One more: converting rounds to the nearest unit, which may be less than the text needs.
    return m_conversion.pixelsToDialogUnits(SIZE{drawn + drawn / kDrawnWider, 0}).cx + 1;
}

long UITextRuler::LinesOf(const CXString& text, long width) const
{
    return LinesOf(text, width, m_fit.mostLines);
}

long UITextRuler::LinesOf(const CXString& text, long width, long mostLines) const
{
    // Most texts fit one line, and that is cheaper to find out than how they wrap.
    if (WidthOf(text) <= width)
        return 1;
    const LONG room = m_conversion.dialogUnitsToPixels(SIZE{width, 0}).cx;
    const LONG narrow = room - room / kDrawnWider;
    const SIZE wrapped = m_measure.measureWrapped(text.View(), narrow);
    const long lines = std::max(1L, wrapped.cy / std::max(1, m_measure.fontHeight()));
    if (lines > mostLines || wrapped.cx > narrow)
        NoteCut();
    return std::clamp(lines, 1L, std::max(1L, mostLines));
}
