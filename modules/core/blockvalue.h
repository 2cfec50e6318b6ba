#pragma once

#include "blockbytes.h"
#include "settingssnapshot.h"

#include <cstddef>

namespace o7 {

/// A value as its bytes in a settings block; a text, which has no length of its own, ends with
/// them.
void WriteValue(const FeatureValue& value, BlockWriter& out);

/// The most bytes that the value of the feature can take while its texts stay what they are.
std::size_t LongestValue(const FeatureDescription& description, const SettingsSnapshot& settings);

/// Chooses what the bytes say, a value of `kind` that a package of version `version` wrote. What is
/// no value of this feature (any more) leaves it as it is.
void TakeValue(const FeatureDescription& description, FeatureKind kind, BlockReader in,
               unsigned version, SettingsSnapshot& settings);

} // namespace o7
