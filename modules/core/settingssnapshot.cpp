#include "settingssnapshot.h"

#include "featurenode.h"

namespace o7 {

SettingsSnapshot CaptureSettings(const FeatureNode& feature)
{
    SettingsSnapshot snapshot;
    if (feature.StoredSpecified())
        snapshot.value = feature.StoredValue();
    snapshot.item = feature.GetId().GetFeatureId().GetItem();
    snapshot.children.reserve(feature.Children().size());
    for (const auto& child : feature.Children())
        snapshot.children.push_back(CaptureSettings(*child));
    return snapshot;
}

SettingsSnapshot DefaultSettings(const FeatureDescription& description)
{
    SettingsSnapshot snapshot;
    snapshot.value = description.defaultValue;
    if (description.list) {
        for (const FeatureDescription& member : description.list->features)
            snapshot.children.push_back(DefaultSettings(member));
    }
    return snapshot;
}

bool SameSettings(const FeatureDescription& description, const SettingsSnapshot& a,
                  const SettingsSnapshot& b)
{
    if (a.value != b.value || a.children.size() != b.children.size())
        return false;
    for (std::size_t i = 0; i < a.children.size(); ++i) {
        const FeatureDescription& child =
            description.item ? *description.item : description.list->features[i];
        if (!child.IsPrivate() && !SameSettings(child, a.children[i], b.children[i]))
            return false;
    }
    return true;
}

} // namespace o7
