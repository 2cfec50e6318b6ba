#pragma once

#include <cstdint>
#include <vector>

#include "rangecapability.h"
#include "uinumberrules.h"

namespace o7 {

/// The ranges of a capability in rising order, in units of `grid`: 1 for plain numbers, the count
/// of one unit for numbers that count a length.
std::vector<UINumberRules::Range> numberRanges(const RangeCapability& capability,
                                               std::int64_t grid = 1);

} // namespace o7
