#pragma once

#include "featurevalue.h"

#include <string>

namespace o7 {

/// A value as an author or a log would write it, not localised: an option's name (or "#number"), a
/// number, "true", "2-5", "210 mm", "600x1200", or "unspecified". UTF-8.
std::string PlainText(const FeatureValue& value);

} // namespace o7
