#pragma once

#include <cstdint>
#include <vector>

#include "rangecapability.h"
#include "uinumberrules.h"

class UIServices;

namespace o7 {

/// The ranges of a capability in rising order, in units of `grid`: 1 for plain numbers, the count
/// of one unit for numbers that count a length.
std::vector<UINumberRules::Range> numberRanges(const RangeCapability& capability,
                                               std::int64_t grid = 1);
/// The same for all that the product has, ruled out by other settings or not.
std::vector<UINumberRules::Range> supportedRanges(const RangeCapability& capability,
                                                  std::int64_t grid = 1);

/// The rules for a whole number: what can be chosen now, written as the person writes numbers.
UINumberRules wholeNumberRules(const RangeCapability& capability, const UIServices& services);

} // namespace o7
