#pragma once

#include "description.h"

#include <vector>

namespace o7 {

class FeatureNode;

/// The values of a feature and of everything below it, detached from the model: what is accepted,
/// what stands in a job ticket or a settings block. Members stand in the order of the description.
struct SettingsSnapshot
{
    static constexpr int kNewItem = -1;

    FeatureValue value;  ///< monostate: unspecified, or a list.
    int item = kNewItem; ///< For an item of a list of values the key it has in the model.
    std::vector<SettingsSnapshot> children;
};

SettingsSnapshot CaptureSettings(const FeatureNode& feature);
SettingsSnapshot DefaultSettings(const FeatureDescription& description);

/// Whether two snapshots of the same feature say the same; features private to the UI do not count.
bool SameSettings(const FeatureDescription& description, const SettingsSnapshot& a,
                  const SettingsSnapshot& b);

} // namespace o7
