#include "uiwaysout.h"

#include <algorithm>

#include "featureservices.h"

std::vector<o7::WayOut> UIWaysOut::of(const FeatureIdWithContext& feature) const
{
    std::vector<o7::WayOut> ways;
    for (UIWaySearch::Found& found : UIWaySearch(m_featureServices, feature).run())
        ways.push_back({m_texts.sentence(found.alternative, found.consequences),
                        std::move(found.alternative)});
    return ways;
}

std::vector<o7::WayOut> UIWaysOut::toEntry(const FeatureIdWithContext& feature,
                                           const ValueId& entry) const
{
    std::vector<o7::WayOut> ways;
    const auto proposal = m_featureServices.ProposeChange(feature, entry);
    for (const o7::Alternative& alternative : proposal.alternatives) {
        const auto& changes = alternative.changes;
        if (changes.empty() || changes.front().after != o7::FeatureValue(entry))
            continue; // keeps the old value, or takes another one
        const auto consequences = m_featureServices.PreviewAlternative(alternative);
        const bool clashes =
            std::any_of(consequences.begin(), consequences.end(), [](const auto& one) {
                return one.stateAfter.HasCbrBtnMsg() && !one.stateBefore.HasCbrBtnMsg();
            });
        if (!consequences.empty() && !clashes)
            ways.push_back({m_texts.sentence(alternative, consequences), alternative});
    }
    return ways;
}

o7::Settlement UIWaysOut::settle(const std::vector<FeatureIdWithContext>& conflicts) const
{
    o7::Settlement settlement;
    std::vector<o7::Consequence> consequences;
    UIWaySearch::Features settled;
    for (const FeatureIdWithContext& feature : conflicts) {
        if (UIWaySearch::stateAfter(m_featureServices, feature, consequences).HasCbrBtnMsg()) {
            UIWaySearch search(m_featureServices, feature);
            search.startFrom(settlement.alternative.changes, settled);
            auto ways = search.run();
            if (ways.empty()) {
                settlement.left.push_back(feature);
                continue;
            }
            const auto left = [&](const UIWaySearch::Found& way) {
                return std::count_if(conflicts.begin(), conflicts.end(), [&](const auto& other) {
                    return UIWaySearch::stateAfter(m_featureServices, other, way.consequences)
                        .HasCbrBtnMsg();
                });
            };
            const auto best =
                std::min_element(ways.begin(), ways.end(),
                                 [&](const auto& a, const auto& b) { return left(a) < left(b); });
            settlement.alternative = std::move(best->alternative);
            consequences = std::move(best->consequences);
        }
        settled.push_back(feature);
    }
    settlement.lines = m_texts.lines(settlement.alternative, consequences);
    return settlement;
}

bool UIWaysOut::carryOut(const o7::Alternative& way) const
{
    return m_featureServices.ApplyAlternative(way);
}
