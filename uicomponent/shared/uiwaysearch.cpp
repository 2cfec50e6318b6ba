#include "uiwaysearch.h"

#include <algorithm>
#include <utility>

#include "featureservices.h"

namespace {

constexpr int kMostTrials = 200;
// How many values of one setting are offered: of the one that it is about, and of others.
constexpr std::ptrdiff_t kMostOwnValues = 3;
constexpr std::ptrdiff_t kMostValues = 2;
constexpr std::size_t kMostWays = 8;

bool isKeptFromBeingChosen(const InterpretedState& state)
{
    return state.IsDisabled() || state.IsCleared() || state.IsHidden();
}

bool valueChanges(const o7::Consequence& consequence)
{
    return consequence.before != consequence.after;
}

bool comesIntoConflict(const o7::Consequence& consequence)
{
    return consequence.stateAfter.HasCbrBtnMsg() && !consequence.stateBefore.HasCbrBtnMsg() &&
           !consequence.stateAfter.IsHidden();
}

std::ptrdiff_t changedValues(const UIWaySearch::Found& found)
{
    return std::count_if(found.consequences.begin(), found.consequences.end(), valueChanges);
}

} // namespace

UIWaySearch::UIWaySearch(FeatureServices& featureServices, const FeatureIdWithContext& feature)
    : m_featureServices(featureServices), m_feature(feature), m_budget(kMostTrials)
{
}

void UIWaySearch::startFrom(const Changes& changes, const Features& settled)
{
    m_start = changes;
    m_settled = settled;
}

std::vector<UIWaySearch::Found> UIWaySearch::run()
{
    const auto capabilities = m_featureServices.GetFeatureRef(m_feature)->GetCapabilities();
    const InterpretedState& state = capabilities->GetInterpretedState();
    m_isDevice = capabilities->IsDeviceFeature();
    m_inConflict = state.HasCbrBtnMsg();
    if (!m_inConflict && !isKeptFromBeingChosen(state))
        return {};
    m_reasons = m_featureServices.GetStateReasons(m_feature, ValueId());
    std::erase_if(m_reasons, [](const auto& reason) {
        return reason.effect == o7::EffectKind::Info || reason.remedies.empty();
    });
    for (const o7::StateReason& reason : m_reasons)
        tryAlone(reason);
    if (m_found.empty())
        tryTogether(0, {});
    const auto rank = [this](const Found& found) {
        return std::pair(changedValues(found), !startsWith(found, m_feature));
    };
    std::stable_sort(m_found.begin(), m_found.end(),
                     [&](const Found& a, const Found& b) { return rank(a) < rank(b); });
    if (m_found.size() > kMostWays)
        m_found.resize(kMostWays);
    return std::move(m_found);
}

void UIWaySearch::tryAlone(const o7::StateReason& reason)
{
    for (const Changes& remedy : reason.remedies) {
        if (take(remedy) || remedy.size() != 1)
            continue;
        if (const auto changes = withOthersGivingWay(remedy.front()))
            take(*changes);
    }
}

/// Several reasons at once: what lifts each of them by itself, one after the other.
void UIWaySearch::tryTogether(std::size_t first, const Changes& before)
{
    if (first == m_reasons.size() || m_budget <= 0 || m_found.size() >= kMostWays)
        return;
    for (const Changes& remedy : m_reasons[first].remedies) {
        const auto changes = joined(before, remedy);
        if (changes && !(first > 0 && take(*changes)))
            tryTogether(first + 1, *changes);
    }
}

/// @return whether the changes are a way out, or need no trial: of that setting there are enough.
bool UIWaySearch::take(const Changes& changes)
{
    const auto all = joined(m_start, changes);
    if (!all || !mayChange(changes) || m_budget <= 0)
        return false;
    const FeatureIdWithContext& first = changes.front().feature;
    const auto sameStart = std::count_if(m_found.begin(), m_found.end(), [&](const Found& found) {
        return startsWith(found, first);
    });
    if (isKnown(*all) || sameStart >= (first == m_feature ? kMostOwnValues : kMostValues))
        return true;
    --m_budget;
    o7::Alternative alternative{o7::AlternativeKind::KeepNew, *all};
    auto consequences = m_featureServices.PreviewAlternative(alternative);
    if (!helps(consequences))
        return false;
    m_found.push_back({std::move(alternative), std::move(consequences)});
    return true;
}

bool UIWaySearch::startsWith(const Found& found, const FeatureIdWithContext& feature) const
{
    const Changes& changes = found.alternative.changes;
    return changes.size() > m_start.size() && changes[m_start.size()].feature == feature;
}

bool UIWaySearch::helps(const std::vector<o7::Consequence>& consequences) const
{
    if (std::none_of(consequences.begin(), consequences.end(), valueChanges) ||
        std::any_of(consequences.begin(), consequences.end(), comesIntoConflict))
        return false;
    const auto isInConflict = [&](const FeatureIdWithContext& feature) {
        return stateAfter(m_featureServices, feature, consequences).HasCbrBtnMsg();
    };
    if (std::any_of(m_settled.begin(), m_settled.end(), isInConflict))
        return false;
    const InterpretedState after = stateAfter(m_featureServices, m_feature, consequences);
    return m_inConflict ? !after.HasCbrBtnMsg() : !isKeptFromBeingChosen(after);
}

InterpretedState UIWaySearch::stateAfter(FeatureServices& featureServices,
                                         const FeatureIdWithContext& feature,
                                         const std::vector<o7::Consequence>& consequences)
{
    const auto found = std::find_if(consequences.begin(), consequences.end(),
                                    [&](const auto& one) { return one.feature == feature; });
    return found != consequences.end()
               ? found->stateAfter
               : featureServices.GetFeatureRef(feature)->GetCapabilities()->GetInterpretedState();
}

/// What is installed is chosen where the printer is set up, and a job is not set up there.
bool UIWaySearch::mayChange(const Changes& changes) const
{
    return std::all_of(changes.begin(), changes.end(), [&](const o7::SettingChange& change) {
        const auto capabilities =
            m_featureServices.GetFeatureRef(change.feature)->GetCapabilities();
        return capabilities->IsDeviceFeature() == m_isDevice && !capabilities->IsReadOnly();
    });
}

bool UIWaySearch::isKnown(const Changes& changes) const
{
    const auto contains = [](const Changes& list, const o7::SettingChange& change) {
        return std::any_of(list.begin(), list.end(), [&](const o7::SettingChange& one) {
            return one.feature == change.feature && one.after == change.after;
        });
    };
    return std::any_of(m_found.begin(), m_found.end(), [&](const Found& found) {
        const Changes& known = found.alternative.changes;
        return known.size() == changes.size() &&
               std::all_of(known.begin(), known.end(),
                           [&](const auto& change) { return contains(changes, change); });
    });
}

std::optional<UIWaySearch::Changes>
UIWaySearch::withOthersGivingWay(const o7::SettingChange& change) const
{
    const auto proposal = m_featureServices.ProposeChange(change.feature, change.after);
    const auto found =
        std::find_if(proposal.alternatives.begin(), proposal.alternatives.end(),
                     [](const auto& one) { return one.kind == o7::AlternativeKind::KeepNew; });
    if (found == proposal.alternatives.end() || found->changes.size() < 2)
        return std::nullopt;
    return found->changes;
}

/// Nothing where the two want different values for one setting.
std::optional<UIWaySearch::Changes> UIWaySearch::joined(const Changes& first,
                                                        const Changes& second) const
{
    Changes all = first;
    for (const o7::SettingChange& change : second) {
        const auto same = std::find_if(
            all.begin(), all.end(), [&](const auto& one) { return one.feature == change.feature; });
        if (same == all.end())
            all.push_back(change);
        else if (same->after != change.after)
            return std::nullopt;
    }
    return all;
}
