#pragma once

#include "description.h"
#include "idatamodel.h"

namespace o7 {

/// Whether the feature is among the settings of a scope. A list of features always is: its members
/// say for themselves.
inline bool IsInScope(const FeatureDescription& feature, SettingsScope scope)
{
    if (feature.list)
        return true;
    return (!feature.flags.device || scope == SettingsScope::All) &&
           (!feature.flags.secret || scope == SettingsScope::Document);
}

/// Whether it goes out with a block or a ticket of that scope, and comes in with one.
inline bool Travels(const FeatureDescription& feature, SettingsScope scope)
{
    return feature.IsKept() && feature.kind != FeatureKind::Resolution && IsInScope(feature, scope);
}

} // namespace o7
