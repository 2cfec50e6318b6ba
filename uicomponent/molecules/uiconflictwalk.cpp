#include "uiconflictwalk.h"

#include <algorithm>
#include <utility>

#include "featureservices.h"
#include "setofsettingids.h"
#include "uimolecule.h"
#include "uimoleculecontainer.h"

namespace {

bool showsOneOf(const UIMolecule& molecule, const std::vector<FeatureIdWithContext>& features)
{
    SetOfSettingIds settings;
    molecule.CollectSettings(settings);
    return std::any_of(features.begin(), features.end(),
                       [&](const auto& feature) { return settings.Contains(feature); });
}

} // namespace

std::vector<FeatureIdWithContext> UIConflictWalk::conflicts(FeatureServices& featureServices)
{
    auto features = featureServices.GetFeaturesInConflict();
    std::erase_if(features,
                  [&](const auto& feature) { return !featureServices.TestFeature(feature); });
    return features;
}

UIConflictWalk::UIConflictWalk(FeatureServices& featureServices, Containers containers)
    : m_containers(std::move(containers))
{
    const auto features = conflicts(featureServices);
    Place place;
    for (place.container = 0; place.container < std::ssize(m_containers); ++place.container) {
        place.molecule = 0;
        for (const UIMolecule* molecule :
             m_containers[static_cast<std::size_t>(place.container)]->getMolecules()) {
            if (showsOneOf(*molecule, features))
                m_stops.push_back(place);
            ++place.molecule;
        }
    }
}

std::optional<UIConflictWalk::Place> UIConflictWalk::next(const Place& from, bool backwards) const
{
    if (m_stops.empty())
        return std::nullopt;
    if (!backwards) {
        const auto after = std::upper_bound(m_stops.begin(), m_stops.end(), from);
        return after == m_stops.end() ? m_stops.front() : *after;
    }
    const auto notBefore = std::lower_bound(m_stops.begin(), m_stops.end(), from);
    return notBefore == m_stops.begin() ? m_stops.back() : *std::prev(notBefore);
}

UIConflictWalk::Place UIConflictWalk::placeOfFocus(std::size_t container) const
{
    const auto& molecules = m_containers[container]->getMolecules();
    const HWND focus = GetFocus();
    const auto found =
        std::find_if(molecules.begin(), molecules.end(),
                     [=](const UIMolecule* molecule) { return molecule->OwnsControl(focus); });
    const auto molecule = found == molecules.end() ? -1 : found - molecules.begin();
    return {static_cast<std::ptrdiff_t>(container), molecule};
}

UIMolecule& UIConflictWalk::moleculeAt(const Place& place) const
{
    return *m_containers[static_cast<std::size_t>(place.container)]
                ->getMolecules()[static_cast<std::size_t>(place.molecule)];
}
