#include "settingssnapshot.h"

#include "featurenode.h"
#include "settingsscope.h"

#include <algorithm>

namespace o7 {

SettingsSnapshot CaptureSettings(const FeatureNode& feature)
{
    SettingsSnapshot snapshot;
    if (feature.StoredSpecified())
        snapshot.value = feature.StoredValue();
    snapshot.followsDefault = feature.FollowsDefault();
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
    snapshot.followsDefault = !description.defaults.empty();
    if (description.list) {
        for (const FeatureDescription& member : description.list->features)
            snapshot.children.push_back(DefaultSettings(member));
    }
    return snapshot;
}

namespace {

template <typename Resettable>
SettingsSnapshot DefaultsWhere(const FeatureNode& feature, const Resettable& isResettable)
{
    const FeatureDescription& description = feature.Description();
    if (!description.IsKept() || !isResettable(description))
        return CaptureSettings(feature);
    if (!description.list)
        return DefaultSettings(description);
    SettingsSnapshot snapshot = CaptureSettings(feature);
    for (std::size_t i = 0; i < snapshot.children.size(); ++i)
        snapshot.children[i] = DefaultsWhere(*feature.Children()[i], isResettable);
    return snapshot;
}

} // namespace

SettingsSnapshot ResettableDefaults(const FeatureNode& feature, SettingsScope scope)
{
    return DefaultsWhere(feature, [scope](const auto& one) { return IsInScope(one, scope); });
}

SettingsSnapshot ResettableDefaults(const FeatureNode& feature)
{
    return DefaultsWhere(feature, [](const FeatureDescription&) { return true; });
}

void Overlay(const FeatureDescription& description, const IFeatureNode& source,
             SettingsSnapshot& settings)
{
    if (description.flags.readOnly)
        return;
    if (description.item) {
        settings.children.clear();
        const std::size_t count = std::min(source.GetNumChildren(), description.maxItems);
        for (std::size_t i = 0; i < count; ++i) {
            settings.children.push_back(DefaultSettings(*description.item));
            Overlay(*description.item, *source.GetChild(i), settings.children.back());
        }
        return;
    }
    if (description.list) {
        for (std::size_t i = 0; i < settings.children.size(); ++i) {
            const FeatureDescription& member = description.list->features[i];
            const auto found = source.FindFeature(member.Id());
            if (found->GetKind() == member.kind)
                Overlay(member, *found, settings.children[i]);
        }
        return;
    }
    // Of a feature of ours its own value, not what another setting makes of it meanwhile.
    if (const auto* node = dynamic_cast<const FeatureNode*>(&source)) {
        FeatureValue own = node->StoredValue();
        if (!node->StoredSpecified() && !description.flags.required)
            settings.Choose({});
        else if (node->StoredSpecified() && description.Accepts(own))
            settings.Choose(std::move(own));
        return;
    }
    FeatureValue value;
    if (!source.IsSpecified() && !description.flags.required)
        settings.Choose({});
    else if (source.IsSpecified() && source.GetValue(value) && description.Accepts(value))
        settings.Choose(std::move(value));
}

namespace {

bool Same(const FeatureDescription& description, const SettingsSnapshot& a,
          const SettingsSnapshot& b, bool choices)
{
    const bool following = a.followsDefault && b.followsDefault;
    if ((choices && a.followsDefault != b.followsDefault) || (!following && a.value != b.value) ||
        a.children.size() != b.children.size())
        return false;
    for (std::size_t i = 0; i < a.children.size(); ++i) {
        const FeatureDescription& child =
            description.item ? *description.item : description.list->features[i];
        if (!child.IsPrivate() && !child.flags.stateOnly &&
            !Same(child, a.children[i], b.children[i], choices))
            return false;
    }
    return true;
}

} // namespace

bool SameSettings(const FeatureDescription& description, const SettingsSnapshot& a,
                  const SettingsSnapshot& b)
{
    return Same(description, a, b, false);
}

bool IsDefault(const FeatureDescription& description, const SettingsSnapshot& settings)
{
    return Same(description, settings, DefaultSettings(description), true);
}

} // namespace o7
