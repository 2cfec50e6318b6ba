#pragma once

#include <optional>
#include <vector>

#include "changeproposal.h"
#include "interpretedstate.h"
#include "statereason.h"

class FeatureServices;

/// Looks for changes that end what limits one setting: its conflict or, where there is none, what
/// keeps it from being chosen at all. Takes what the model proposes, tries each on the model, which
/// stays as it is, and keeps what really helps and brings no new conflict.
class UIWaySearch
{
public:
    using Changes = std::vector<o7::SettingChange>;
    using Features = std::vector<FeatureIdWithContext>;

    struct Found
    {
        o7::Alternative alternative;
        std::vector<o7::Consequence> consequences;
    };

    /// The services are borrowed.
    UIWaySearch(FeatureServices& featureServices, const FeatureIdWithContext& feature);
    /// As if these changes had been made already.
    /// @param settled  what they have brought out of conflict, which has to stay so
    void startFrom(const Changes& changes, const Features& settled);

    /// Those that change least come first, and of these what the feature itself can give up. Of one
    /// setting no more than the first few values. None
    /// where the feature is not limited, or the device itself limits it.
    std::vector<Found> run();

    /// The feature's state after the changes whose consequences these are.
    static InterpretedState stateAfter(FeatureServices& featureServices,
                                       const FeatureIdWithContext& feature,
                                       const std::vector<o7::Consequence>& consequences);

private:
    void tryAlone(const o7::StateReason& reason);
    void tryTogether(std::size_t first, const Changes& before);
    bool take(const Changes& changes);
    bool helps(const std::vector<o7::Consequence>& consequences) const;
    bool mayChange(const Changes& changes) const;
    bool isKnown(const Changes& changes) const;
    bool startsWith(const Found& found, const FeatureIdWithContext& feature) const;
    std::optional<Changes> withOthersGivingWay(const o7::SettingChange& change) const;
    std::optional<Changes> joined(const Changes& first, const Changes& second) const;

    FeatureServices& m_featureServices;
    FeatureIdWithContext m_feature;
    bool m_inConflict = false; ///< else it is kept from being chosen
    bool m_isDevice = false;
    Changes m_start;
    Features m_settled;
    std::vector<o7::StateReason> m_reasons;
    std::vector<Found> m_found;
    int m_budget;
};
