#pragma once

#include "description.h"
#include "idatamodel.h"
#include "ifeaturenode.h"

#include <utility>
#include <vector>

namespace o7 {

class FeatureNode;

/// The values of a feature and of everything below it, detached from the model: what is accepted,
/// what stands in a job ticket or a settings block. Members stand in the order of the description.
struct SettingsSnapshot
{
    static constexpr int kNewItem = -1;

    FeatureValue value;          ///< monostate: unspecified, or a list.
    bool followsDefault = false; ///< The value is the default, whatever that becomes.
    int item = kNewItem;         ///< For an item of a list of values the key it has in the model.
    std::vector<SettingsSnapshot> children;

    /// Somebody's choice instead of a default.
    void Choose(FeatureValue chosen)
    {
        value = std::move(chosen);
        followsDefault = false;
    }
};

SettingsSnapshot CaptureSettings(const FeatureNode& feature);
SettingsSnapshot DefaultSettings(const FeatureDescription& description);
/// The defaults, except that what is no setting at all, or not of the scope, stays as it is.
SettingsSnapshot ResettableDefaults(const FeatureNode& feature, SettingsScope scope);
/// The same for every setting there is.
SettingsSnapshot ResettableDefaults(const FeatureNode& feature);

/// Puts what `source` says over `settings`, as far as the description has and accepts it.
void Overlay(const FeatureDescription& description, const IFeatureNode& source,
             SettingsSnapshot& settings);

/// Whether two snapshots of the same feature say the same; features private to the UI, and what the
/// device reports, do not count.
bool SameSettings(const FeatureDescription& description, const SettingsSnapshot& a,
                  const SettingsSnapshot& b);
/// Whether the snapshot says of the feature what DefaultSettings() does, choices of values that
/// only happen to be the default not included.
bool IsDefault(const FeatureDescription& description, const SettingsSnapshot& settings);

} // namespace o7
