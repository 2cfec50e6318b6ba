#include "constraintengine.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace o7 {
namespace {

/// The feature in this list or in the nearest list around it that has it.
FeatureNode& FindOutwards(FeatureNode& list, FeatureEnum number)
{
    for (FeatureNode* scope = &list; scope != nullptr; scope = scope->Parent()) {
        auto* found = scope->Description().list ? scope->FindChild(FeatureId(number)) : nullptr;
        if (found != nullptr)
            return *found;
    }
    throw std::logic_error("a checked package names a feature that it does not have");
}

} // namespace

std::unique_ptr<Constraint> ConstraintEngine::Bind(const ConstraintDescription& description,
                                                   FeatureNode& list)
{
    auto constraint = std::make_unique<Constraint>();
    for (const ConditionDescription& condition : description.when) {
        constraint->when.push_back({FindOutwards(list, condition.feature).shared_from_this(),
                                    condition.comparison, condition.values,
                                    condition.holdsWithoutValue});
    }
    constraint->target = FindOutwards(list, description.target).shared_from_this();
    constraint->values = description.values;
    constraint->kind = description.kind;
    constraint->reason = description.reason;
    return constraint;
}

void ConstraintEngine::Attach(FeatureNode& list)
{
    if (list.constraints.empty() && list.Description().list) {
        for (const ConstraintDescription& description : list.Description().list->constraints)
            list.constraints.push_back(Bind(description, list));
    }
    for (const auto& constraint : list.constraints)
        Link(*constraint);
    for (const auto& child : list.Children())
        Attach(*child);
    Run();
}

void ConstraintEngine::Detach(FeatureNode& list)
{
    for (const auto& child : list.Children())
        Detach(*child);
    for (const auto& constraint : list.constraints)
        Unlink(*constraint);
}

void ConstraintEngine::Add(std::unique_ptr<Constraint> constraint)
{
    Link(*constraint);
    m_added.push_back(std::move(constraint));
    Run();
}

void ConstraintEngine::Link(Constraint& constraint)
{
    for (const Constraint::Cause& cause : constraint.when) {
        auto& readers = cause.feature->readers;
        if (std::find(readers.begin(), readers.end(), &constraint) == readers.end())
            readers.push_back(&constraint);
    }
    constraint.target->effects.push_back(&constraint);
    Queue(constraint);
}

void ConstraintEngine::Unlink(Constraint& constraint)
{
    for (const Constraint::Cause& cause : constraint.when)
        std::erase(cause.feature->readers, &constraint);
    std::erase(constraint.target->effects, &constraint);
    constraint.active = false;
}

void ConstraintEngine::ValueChanged(FeatureNode& feature)
{
    // A limited feature says something else when its value enters or leaves the limits.
    const bool limited =
        std::any_of(feature.effects.begin(), feature.effects.end(), [](const Constraint* effect) {
            return effect->active && !effect->AffectsWhole();
        });
    if (limited)
        m_changes.Note(feature, kStateBit);
    for (Constraint* reader : feature.readers)
        Queue(*reader);
    Run();
}

void ConstraintEngine::Queue(Constraint& constraint)
{
    if (!constraint.queued) {
        constraint.queued = true;
        m_queue.push_back(&constraint);
    }
}

void ConstraintEngine::Run()
{
    for (std::size_t next = 0; next < m_queue.size(); ++next) {
        Constraint& constraint = *m_queue[next];
        constraint.queued = false;
        ++m_evaluations;
        const bool holds = constraint.ConditionsHold();
        if (holds == constraint.active)
            continue;
        constraint.active = holds;
        StateChanged(*constraint.target);
        if (constraint.kind == EffectKind::Clear) {
            for (Constraint* reader : constraint.target->readers)
                Queue(*reader);
        }
    }
    m_queue.clear();
}

void ConstraintEngine::StateChanged(FeatureNode& feature)
{
    m_changes.Note(feature, kStateBit);
    // A list hands its state down to what is in it.
    for (const auto& child : feature.Children())
        StateChanged(*child);
}

} // namespace o7
