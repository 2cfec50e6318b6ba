#pragma once

#include <windows.h>

#include "cxstring.h"
#include "uimoleculegaps.h"

class DialogConversion;

namespace o7 {
class TextMeasure;
}

/// How the molecules of one column share the room they have. Dialog units.
struct UIColumnFit
{
    long labelWidth =
        0; ///< room beside the boxes for labels, their gap included; 0: they stand above
    long mostLines = 2; ///< that a label or the text of a button may take
    UIMoleculeGaps gaps{};
};

/// What texts need in the font of a page, in dialog units, rounded up. Mnemonic marks take no room.
/// Handed to the molecules of a column together with what holds for that column.
class UITextRuler
{
public:
    /// Both are borrowed.
    /// @param measure     in the page's font
    /// @param conversion  set up for the page
    UITextRuler(const o7::TextMeasure& measure, const DialogConversion& conversion);

    /// The same ruler for another column.
    UITextRuler ForColumn(const UIColumnFit& fit) const;
    /// What holds for the column.
    const UIColumnFit& GetFit() const { return m_fit; }

    /// Width of the text on one line.
    long WidthOf(const CXString& text) const;
    /// How many lines the text takes when it is wrapped at that width; at least 1, and at most as
    /// many as a label of the column may take. A text that needs more counts as cut.
    long LinesOf(const CXString& text, long width) const;
    /// The same with another limit.
    long LinesOf(const CXString& text, long width, long mostLines) const;

    /// Whether a text that was measured does not fit, so that a tip has to hold the whole of it.
    bool HasCut() const { return m_hasCut; }
    /// Says so of a text that was measured otherwise.
    void NoteCut() const { m_hasCut = true; }

    static constexpr long kLineHeight = 8;

private:
    const o7::TextMeasure& m_measure;
    const DialogConversion& m_conversion;
    UIColumnFit m_fit;
    mutable bool m_hasCut = false; ///< an observation: molecules only read the ruler
};
