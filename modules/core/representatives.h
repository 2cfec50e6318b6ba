#pragma once

#include "description.h"

#include <vector>

namespace o7 {

/// Values that stand for all of a feature's: every option, both booleans, and of numbers, lengths
/// and texts the default, the bounds, and what lies on and beside each value that the tests compare
/// with. The default comes first. Unspecified (value 5001, or monostate) is among them where the
/// feature offers it or starts so.
std::vector<FeatureValue> Representatives(const FeatureDescription& feature,
                                          const std::vector<const ValueTest*>& tests);

} // namespace o7
