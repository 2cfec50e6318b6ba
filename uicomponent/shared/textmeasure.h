#pragma once

#include "uihandles.h"

#include <string_view>

namespace o7 {

/// Measures texts in a font, in pixels. A DC of its own in memory with the font selected once, so
/// that measuring many texts costs one set-up and no call to the window server; the mapping of a
/// window's DC (mirrored in right-to-left layouts) does not come into it.
class TextMeasure
{
public:
    /// The font is borrowed; null stands for the stock DEFAULT_GUI_FONT.
    explicit TextMeasure(HFONT font) noexcept;

    /// Width and height of one line; zero when the text cannot be measured.
    SIZE measure(std::wstring_view text) const noexcept;

    /// Width and height of the text broken into lines between words, as a static control draws it:
    /// a single "&" marks the mnemonic. A word that is wider than the room makes it wider.
    SIZE measureWrapped(std::wstring_view text, LONG width) const noexcept;

    /// Height of a line of the font.
    int fontHeight() const noexcept;

private:
    UniqueMemoryDc m_dc;
    SelectedObject m_font; // put back before the DC goes
};

} // namespace o7
