#pragma once

#include "cxstring.h"

namespace o7 {

/// How a person reads lengths; what a data model writes into its sentences follows it.
struct LengthFormat
{
    bool metric = true; ///< Where the units are not chosen in the settings.
    wchar_t decimalSeparator = L'.';
    CXString millimetre{L"mm"}; ///< The names of the units.
    CXString inch{L"in"};
};

} // namespace o7
