#pragma once

#include "featureidwithcontext.h"
#include "iobserver.h"

#include <cstdint>
#include <memory>

namespace o7 {

class FeatureNode;

/// One observer's interest in one feature. Shared with deliveries under way, which look at `alive`
/// before each call: an observer that has gone is never called.
struct Registration
{
    IObserver* observer = nullptr; ///< Borrowed; not to be touched once `alive` is false.
    DataModelIds::SettingsEnum instance = DataModelIds::kSettingsCurrent;
    FeatureIdWithContext feature;
    unsigned kind = 0;
    unsigned count = 1;       ///< How often the same four arguments were registered.
    std::uint64_t serial = 0; ///< Order of the observer's first registration.
    bool alive = true;
    std::weak_ptr<FeatureNode> node;
};

} // namespace o7
