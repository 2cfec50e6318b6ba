#pragma once

#include <functional>
#include <optional>

#include "featureidwithcontext.h"

class FeatureServices;

namespace o7 {

/// A required setting that could have a value and has none, or an empty text: the first in the
/// product. @param counts  which of them matter; empty: all
std::optional<FeatureIdWithContext>
findMissing(FeatureServices& featureServices,
            const std::function<bool(const FeatureIdWithContext&)>& counts);

} // namespace o7
