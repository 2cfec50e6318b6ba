// The part of the data model that answers "why" and "what if".
#include "conflictresolver.h"
#include "datamodel.h"
#include "remedysearch.h"

#include <algorithm>
#include <optional>

namespace o7 {
namespace {

/// What a constraint on some values does to the feature as a whole, now; nothing: it does not show.
std::optional<EffectKind> EffectOnFeature(const Constraint& constraint)
{
    const bool clash = constraint.whole ? constraint.kind == EffectKind::Conflict
                                        : constraint.hit && constraint.kind != EffectKind::Info &&
                                              constraint.kind != EffectKind::Clear;
    if (clash)
        return constraint.IsBroken() ? std::optional(EffectKind::Conflict) : std::nullopt;
    if (constraint.whole || constraint.hit)
        return constraint.kind;
    if (constraint.Blocks() && constraint.target->IsLastChoice())
        return EffectKind::Disable;
    const bool told =
        constraint.kind == EffectKind::Disable || constraint.kind == EffectKind::Clear;
    return told ? std::optional(EffectKind::Info) : std::nullopt;
}

std::vector<FeatureIdWithContext> CausesOf(const Constraint& constraint)
{
    std::vector<FeatureIdWithContext> causes;
    for (const Constraint::Cause& cause : constraint.when) {
        if (std::find(causes.begin(), causes.end(), cause.feature->GetId()) == causes.end())
            causes.push_back(cause.feature->GetId());
    }
    return causes;
}

void CollectBroken(const FeatureNode& feature, std::vector<FeatureIdWithContext>& all)
{
    const auto& effects = feature.activeEffects;
    if (std::any_of(effects.begin(), effects.end(),
                    [](const auto& effect) { return effect.constraint->IsBroken(); }))
        all.push_back(feature.GetId());
    for (const auto& child : feature.Children())
        CollectBroken(*child, all);
}

} // namespace

std::vector<std::vector<SettingChange>> DataModel::RemediesOf(const Constraint& constraint)
{
    std::vector<std::vector<SettingChange>> remedies;
    for (const RemedySearch::Remedy& remedy : RemedySearch(m_log, m_engine, constraint).Run()) {
        remedies.emplace_back();
        for (const RemedySearch::Step& step : remedy)
            remedies.back().push_back({step.feature->GetId(),
                                       m_interpreter.Shown(*step.feature, step.before),
                                       m_interpreter.Shown(*step.feature, step.after)});
    }
    return remedies;
}

std::vector<StateReason> DataModel::GetStateReasons(const FeatureIdWithContext& feature,
                                                    const ValueId& option)
{
    std::vector<StateReason> reasons;
    const bool ofOption = option.GetValueEnum() != DataModelIds::kNoValue;
    const auto add = [&](const Constraint& constraint, EffectKind effect, const ValueId* value) {
        reasons.push_back({constraint.id, effect, m_interpreter.Reason(constraint, value),
                           constraint.target->GetId(), CausesOf(constraint),
                           RemediesOf(constraint)});
    };
    const FeatureNode* node = FindNode(feature);
    if (node != nullptr && m_interpreter.IsLocked(*node))
        reasons.push_back(
            {"locked", EffectKind::Disable, m_interpreter.LockReason(), node->GetId(), {}, {}});
    for (const FeatureNode* limited = node; limited != nullptr; limited = limited->Parent()) {
        for (const Constraint* constraint : ActiveInOrder(*limited)) {
            const auto* present = std::get_if<ValueId>(&limited->PresentValue());
            if (ofOption) {
                if (!constraint->whole && constraint->Affects(option))
                    add(*constraint, constraint->kind, &option);
            } else if (const auto effect = EffectOnFeature(*constraint)) {
                add(*constraint, *effect, constraint->hit ? present : nullptr);
            }
        }
        if (ofOption)
            break;
    }
    return reasons;
}

std::vector<FeatureIdWithContext> DataModel::GetFeaturesInConflict()
{
    std::vector<FeatureIdWithContext> all;
    if (!m_engine.Broken().empty())
        CollectBroken(*m_root, all);
    return all;
}

ChangeProposal DataModel::ProposeChange(const FeatureIdWithContext& feature,
                                        const FeatureValue& value)
{
    ChangeProposal proposal{feature, false, {}, {}};
    FeatureNode* node = FindNode(feature);
    FeatureValue wanted = value;
    const auto* option = std::get_if<ValueId>(&wanted);
    if (option != nullptr && option->GetValueEnum() == DataModelIds::kValueUnspecified)
        wanted = {};
    if (node == nullptr || m_interpreter.IsLocked(*node) || !m_writer.CanTake(*node, wanted))
        return proposal;
    proposal.possible = true;
    std::vector<ConflictResolver::Plan> plans;
    {
        ConflictResolver resolver(m_log, m_engine);
        for (const Constraint* broken : resolver.Try(*node, wanted)) {
            // Said now, while everything has the values that it names.
            const auto* chosen = std::get_if<ValueId>(&broken->target->PresentValue());
            proposal.conflicts.push_back({broken->target->GetId(), CausesOf(*broken),
                                          m_interpreter.Reason(*broken, chosen)});
        }
        plans = resolver.Settle();
    }
    proposal.alternatives.reserve(plans.size());
    for (const ConflictResolver::Plan& plan : plans) {
        auto& changes = proposal.alternatives.emplace_back(Alternative{plan.kind, {}}).changes;
        changes.reserve(plan.changes.size());
        for (const ConflictResolver::Change& change : plan.changes)
            changes.push_back({change.feature->GetId(), m_interpreter.ShownPresent(*change.feature),
                               m_interpreter.Shown(*change.feature, change.value)});
    }
    return proposal;
}

std::vector<std::pair<FeatureNode*, FeatureValue>>
DataModel::Resolved(const Alternative& alternative)
{
    std::vector<std::pair<FeatureNode*, FeatureValue>> writes;
    for (const SettingChange& change : alternative.changes) {
        FeatureNode* node = FindNode(change.feature);
        FeatureValue value = change.after;
        if (node == nullptr || m_interpreter.IsLocked(*node) || !m_writer.CanTake(*node, value))
            return {};
        writes.emplace_back(node, std::move(value));
    }
    return writes;
}

std::vector<Consequence> DataModel::PreviewAlternative(const Alternative& alternative)
{
    std::vector<Consequence> consequences;
    std::vector<Change> changes;
    {
        // A level that is taken back without anybody being told.
        struct Rehearsal
        {
            explicit Rehearsal(DataModel& owner) : model(owner) { model.m_log.Open(); }
            ~Rehearsal()
            {
                model.RollBackInnermost();
                model.m_log.Pop(false);
            }
            Rehearsal(const Rehearsal&) = delete;
            Rehearsal& operator=(const Rehearsal&) = delete;
            DataModel& model;
        } rehearsal(*this);
        for (const auto& [feature, value] : Resolved(alternative))
            m_writer.Force(*feature, value);
        changes = m_log.Innermost().changes;
        for (const Change& change : changes)
            consequences.push_back({change.feature->GetId(),
                                    {},
                                    m_interpreter.ShownPresent(*change.feature),
                                    {},
                                    m_interpreter.FeatureState(*change.feature)});
    }
    for (std::size_t i = 0; i < changes.size(); ++i) {
        consequences[i].before = m_interpreter.ShownPresent(*changes[i].feature);
        consequences[i].stateBefore = m_interpreter.FeatureState(*changes[i].feature);
    }
    std::erase_if(consequences, [](const Consequence& one) {
        return one.before == one.after && one.stateBefore == one.stateAfter;
    });
    return consequences;
}

bool DataModel::ApplyAlternative(const Alternative& alternative)
{
    const auto writes = Resolved(alternative);
    if (writes.size() != alternative.changes.size())
        return false;
    const auto transaction = OpenTransaction(CXString());
    for (const auto& [feature, value] : writes)
        m_writer.Force(*feature, value);
    return transaction->Close(true);
}

} // namespace o7
