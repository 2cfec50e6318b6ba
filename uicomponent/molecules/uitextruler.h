#pragma once

#include <windows.h>

#include "cxstring.h"
#include "textmeasure.h"

class DialogConversion;

/// What texts need in the font of a page, in dialog units, rounded up. Mnemonic marks take no room.
class UITextRuler
{
public:
    /// @param font        borrowed; the page's
    /// @param conversion  set up for the page; borrowed
    UITextRuler(HFONT font, const DialogConversion& conversion);

    /// Width of the text on one line.
    long WidthOf(const CXString& text) const;
    /// How many lines the text takes when it is wrapped at that width; at least 1.
    long LinesOf(const CXString& text, long width) const;

    static constexpr long kLineHeight = 8;

private:
    o7::TextMeasure m_measure;
    const DialogConversion& m_conversion;
};
