#pragma once

#include "istringsource.h"

namespace o7::test {

/// Every text is its number.
struct NumberStrings : IStringSource
{
    CXString LoadStringW(unsigned id) const override { return CXString::Formatted(L"#%u", id); }
};

} // namespace o7::test
