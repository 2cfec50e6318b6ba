#pragma once

#include "cxstring.h"
#include "effectkind.h"
#include "featureidwithcontext.h"
#include "featurevalue.h"

#include <string>
#include <vector>

namespace o7 {

/// One setting that changes. Values of option features carry their display string; monostate is
/// "unspecified".
struct SettingChange
{
    FeatureIdWithContext feature;
    FeatureValue before;
    FeatureValue after;
};

/// One reason why a feature or one of its options is as it is now.
struct StateReason
{
    /// The constraint's id in the package, for logs and tests.
    std::string id;
    EffectKind effect = EffectKind::Disable;
    /// The sentence that the state shows for it, localised.
    CXString sentence;
    /// What is limited: the feature asked about, or a list around it.
    FeatureIdWithContext limited;
    /// The features whose values brought it about; the one that the sentence names first.
    std::vector<FeatureIdWithContext> causes;
    /// What could be changed to lift it: each entry is enough by itself, its changes are made in
    /// their order, and each of them can be chosen then. Those with the fewest changes only. Empty
    /// where a person cannot change it: the device itself says so.
    std::vector<std::vector<SettingChange>> remedies;
};

} // namespace o7
