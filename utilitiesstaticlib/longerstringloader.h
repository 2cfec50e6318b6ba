#pragma once

#include "productstringloader.h"

namespace o7 {

/// The text with a third more letters, taken from its own: as long as the longest translation that
/// a page has to hold. Mnemonics, placeholders and the colon at the end stay what they are.
CXString longerText(const CXString& text);

/// A product's texts, each of them longer: to look at, and to test, how pages cope.
class LongerStringLoader : public ProductStringLoader
{
public:
    using ProductStringLoader::ProductStringLoader;

    CXString LoadStringW(unsigned id) const override
    {
        return longerText(ProductStringLoader::LoadStringW(id));
    }
};

} // namespace o7
