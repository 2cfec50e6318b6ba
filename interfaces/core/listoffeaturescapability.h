#pragma once

#include "capabilitiesnode.h"
#include "featureid.h"

#include <utility>
#include <vector>

namespace o7 {

/// Whether one feature of a list travels in a saved job-ticket file.
struct JobTicketTravel
{
    FeatureId feature;
    bool saved = true;
    bool loaded = true;
};

} // namespace o7

/// Answers, per feature of the list, whether it is saved in and loaded from a job-ticket file.
/// A feature that the list does not have is neither.
class ListOfFeaturesCapability : public CapabilitiesNode
{
public:
    ListOfFeaturesCapability() = default;
    ListOfFeaturesCapability(const CapabilitiesNode& base, std::vector<o7::JobTicketTravel> travel)
        : CapabilitiesNode(base), m_travel(std::move(travel))
    {
    }

    bool IsSavedInOjtf(const FeatureId& feature) const
    {
        const auto* entry = Find(feature);
        return entry != nullptr && entry->saved;
    }

    bool IsLoadedFromOjtf(const FeatureId& feature) const
    {
        const auto* entry = Find(feature);
        return entry != nullptr && entry->loaded;
    }

private:
    const o7::JobTicketTravel* Find(const FeatureId& feature) const
    {
        for (const auto& entry : m_travel) {
            if (entry.feature == feature)
                return &entry;
        }
        return nullptr;
    }

    std::vector<o7::JobTicketTravel> m_travel;
};
