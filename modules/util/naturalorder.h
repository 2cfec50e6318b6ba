#pragma once
// The order of texts that are numbers or hold numbers.

#include "cxstring.h"

namespace o7 {

/// Negative, 0 or positive. Numbers (with a point or a comma before the decimals) come first, by
/// value; other texts without regard to case, with every run of digits compared by its value, so
/// that "192.0.2.9" stands before "192.0.2.10" and "1-3" before "10-12".
int compareNatural(const CXString& a, const CXString& b) noexcept;

} // namespace o7
