#include "constraintengine.h"

#include "constraintbinding.h"
#include "prefetch.h"
#include "room.h"
#include "valuecode.h"

#include <algorithm>
#include <utility>

namespace o7 {
namespace {

/// Whether the constraint changes what others read of its target.
bool Influences(const Constraint& constraint)
{
    return constraint.defaultRow != Constraint::kNoRow || constraint.kind == EffectKind::Clear ||
           constraint.kind == EffectKind::Force;
}

/// Whether a change of `from` can reach `to` along constraints that influence.
bool Reaches(const FeatureNode& from, const FeatureNode& to)
{
    if (&from == &to)
        return true;
    const bool below = std::any_of(from.Children().begin(), from.Children().end(),
                                   [&](const auto& child) { return Reaches(*child, to); });
    return below || std::any_of(from.readers.begin(), from.readers.end(), [&](const auto& reader) {
               return Influences(*reader.constraint) && Reaches(*reader.constraint->target, to);
           });
}

bool LiesIn(const FeatureNode& feature, const FeatureNode& list)
{
    const FeatureNode* node = &feature;
    while (node != nullptr && node != &list)
        node = node->Parent();
    return node != nullptr;
}

/// Whether the constraint has to do with the feature or with what is below it.
bool Concerns(const Constraint& constraint, const FeatureNode& feature)
{
    return LiesIn(*constraint.target, feature) ||
           std::any_of(constraint.when.begin(), constraint.when.end(),
                       [&](const auto& cause) { return LiesIn(*cause.feature, feature); });
}

/// Whether everything that the constraint has to do with is there. (What surrounds a feature that
/// is not may be gone for good.)
bool IsComplete(const Constraint& constraint)
{
    return constraint.target->isLinked &&
           std::all_of(constraint.when.begin(), constraint.when.end(),
                       [](const auto& cause) { return cause.feature->isLinked; });
}

} // namespace

void ConstraintEngine::Attach(FeatureNode& feature)
{
    try {
        LinkAll(feature);
        for (const auto& constraint : m_added) {
            if (!constraint->linked && IsComplete(*constraint))
                Link(*constraint);
        }
    } catch (...) {
        Detach(feature);
        throw;
    }
    Settle();
}

void ConstraintEngine::LinkAll(FeatureNode& feature)
{
    if (feature.constraints.empty())
        BindConstraints(feature);
    MakeRoom(m_pending, m_features + 1);
    ++m_features;
    feature.isLinked = true;
    // What is in a list that can be cleared comes after it.
    if (feature.Parent() != nullptr && feature.Parent()->rank != 0)
        Raise(feature, feature.Parent()->rank + 1);
    for (const auto& constraint : feature.constraints)
        Link(*constraint);
    for (const auto& child : feature.Children())
        LinkAll(*child);
}

void ConstraintEngine::Detach(FeatureNode& feature)
{
    for (const auto& constraint : m_added) {
        if (constraint->linked && Concerns(*constraint, feature))
            Unlink(*constraint);
    }
    UnlinkAll(feature);
    Settle();
}

void ConstraintEngine::UnlinkAll(FeatureNode& feature)
{
    for (const auto& child : feature.Children())
        UnlinkAll(*child);
    for (const auto& constraint : feature.constraints)
        Unlink(*constraint);
    if (std::exchange(feature.isLinked, false))
        --m_features;
}

bool ConstraintEngine::Add(std::unique_ptr<Constraint> constraint)
{
    FinishConstraint(*constraint);
    for (const Constraint::Cause& cause : constraint->when) {
        if (Influences(*constraint) && Reaches(*constraint->target, *cause.feature))
            return false;
    }
    m_added.push_back(std::move(constraint));
    try {
        Link(*m_added.back());
    } catch (...) {
        Unlink(*m_added.back());
        m_added.pop_back();
        throw;
    }
    Settle();
    return true;
}

void ConstraintEngine::ForgetDetached()
{
    std::erase_if(m_added, [](const auto& constraint) { return !constraint->linked; });
}

void ConstraintEngine::Link(Constraint& constraint)
{
    FeatureNode& target = *constraint.target;
    if (constraint.defaultRow != Constraint::kNoRow)
        target.defaultRows.push_back(&constraint);
    else
        target.effects.push_back(&constraint);
    target.choices.clear();
    constraint.unmet = 0;
    for (std::size_t i = 0; i < constraint.when.size(); ++i) {
        const Constraint::Cause& cause = constraint.when[i];
        FeatureNode& feature = *cause.feature;
        feature.choices.clear();
        const std::uint64_t mask =
            feature.IsCoded() ? MaskOf(feature.Description(), cause.test, cause.holdsWithoutValue)
                              : 0;
        const bool holds = cause.Holds();
        ++m_evaluations;
        constraint.unmet += holds ? 0 : 1;
        feature.readers.push_back({&constraint, mask, static_cast<std::uint32_t>(i), holds, false});
        MakeRoom(m_answers, feature.readers.size());
        if (Influences(constraint))
            Raise(target, feature.rank + 1);
    }
    // From here on nothing allocates: not now, and not when the constraint is at work.
    MakeRoom(target.activeEffects, target.effects.size());
    MakeRoom(m_toggled, m_linked + 1);
    MakeRoom(m_broken, m_linked + 1);
    constraint.linked = true;
    ++m_linked;
    if (constraint.unmet == 0)
        Activate(constraint, true);
}

void ConstraintEngine::Unlink(Constraint& constraint)
{
    if (constraint.active)
        Activate(constraint, false);
    for (const Constraint::Cause& cause : constraint.when)
        std::erase_if(cause.feature->readers,
                      [&](const auto& reader) { return reader.constraint == &constraint; });
    std::erase(constraint.target->effects, &constraint);
    std::erase(constraint.target->defaultRows, &constraint);
    if (std::exchange(constraint.linked, false))
        --m_linked;
}

void ConstraintEngine::Raise(FeatureNode& feature, unsigned rank)
{
    if (feature.rank >= rank)
        return;
    feature.rank = rank;
    for (const auto& child : feature.Children())
        Raise(*child, rank + 1);
    for (const auto& reader : feature.readers) {
        if (Influences(*reader.constraint))
            Raise(*reader.constraint->target, rank + 1);
    }
}

void ConstraintEngine::Activate(Constraint& constraint, bool active)
{
    if (!constraint.toggled) {
        constraint.toggled = true;
        constraint.activeBefore = constraint.active;
        m_toggled.push_back(&constraint);
    }
    constraint.active = active;
    FeatureNode& target = *constraint.target;
    if (constraint.defaultRow != Constraint::kNoRow) {
        Unsettle(target);
        return;
    }
    if (active)
        AddEffect(constraint);
    else
        RemoveEffect(constraint);
    if (constraint.whole && constraint.Blocks())
        target.wholeLimits += active ? 1U : ~0U;
    if (constraint.kind == EffectKind::Clear) {
        target.activeClears += active ? 1U : ~0U;
        Postpone(target);
    } else if (constraint.kind == EffectKind::Force) {
        Unsettle(target);
    }
    if (constraint.kind == EffectKind::Clear || (constraint.whole && constraint.Blocks()))
        UpdateAllBroken(target);
}

void ConstraintEngine::AddEffect(Constraint& constraint)
{
    auto& effects = constraint.target->activeEffects;
    effects.push_back(
        {&constraint, constraint.affectedCodes, constraint.whole, constraint.Blocks(), false});
    UpdateHit(*constraint.target, effects.back());
    UpdateBroken(constraint);
}

void ConstraintEngine::RemoveEffect(Constraint& constraint)
{
    auto& effects = constraint.target->activeEffects;
    *std::find_if(effects.begin(), effects.end(), [&](const auto& effect) {
        return effect.constraint == &constraint;
    }) = effects.back();
    effects.pop_back();
    constraint.hit = false;
    UpdateBroken(constraint);
}

void ConstraintEngine::UpdateHit(const FeatureNode& feature, FeatureNode::ActiveEffect& effect)
{
    const bool hit = !effect.whole && feature.PresentSpecified() &&
                     (feature.IsCoded() ? IsInMask(effect.codes, feature.PresentCode())
                                        : effect.constraint->Affects(feature.PresentValue()));
    if (hit == effect.hit)
        return;
    effect.hit = hit;
    effect.constraint->hit = hit;
    UpdateBroken(*effect.constraint);
}

void ConstraintEngine::UpdateBroken(Constraint& constraint)
{
    const bool broken = constraint.IsBroken();
    if (broken == (constraint.brokenAt != Constraint::kNotBroken))
        return;
    if (broken) {
        constraint.brokenAt = static_cast<std::uint32_t>(m_broken.size());
        m_broken.push_back(&constraint);
    } else {
        m_broken.back()->brokenAt = constraint.brokenAt;
        m_broken[constraint.brokenAt] = m_broken.back();
        m_broken.pop_back();
        constraint.brokenAt = Constraint::kNotBroken;
    }
}

void ConstraintEngine::UpdateAllBroken(FeatureNode& feature)
{
    for (const auto& effect : feature.activeEffects)
        UpdateBroken(*effect.constraint);
    for (const auto& child : feature.Children())
        UpdateAllBroken(*child);
}

void ConstraintEngine::ValueChanged(FeatureNode& feature)
{
    PresentChanged(feature);
    if (feature.FollowsDefault())
        Unsettle(feature);
    AskReaders(feature);
    Settle();
}

void ConstraintEngine::PresentChanged(FeatureNode& feature)
{
    // A limited feature says something else when its value enters or leaves the limits.
    for (auto& effect : feature.activeEffects) {
        const bool before = effect.hit;
        UpdateHit(feature, effect);
        if (effect.hit != before)
            m_changes.Note(feature, kStateBit);
    }
    // Whether its value is cleared decides about all of them.
    if (feature.activeClears != 0)
        UpdateAllBroken(feature);
}

void ConstraintEngine::AskReaders(FeatureNode& feature)
{
    m_evaluations += feature.readers.size();
    const unsigned code = feature.IsCoded() ? feature.EffectiveCode() : 0;
    // In three rounds, so that memory is on its way before it is needed: a constraint, and then
    // what it limits, lie anywhere.
    for (auto& reader : feature.readers) {
        const bool holds = feature.IsCoded() ? IsInMask(reader.holdsFor, code)
                                             : reader.constraint->when[reader.condition].Holds();
        // The reason of an active constraint may name the value of its cause, and what is forced
        // may depend on one.
        if (holds == reader.holds &&
            (!holds ||
             (reader.condition != 0 && reader.condition != reader.constraint->SourceOfForced())))
            continue;
        reader.changes = holds != reader.holds;
        m_answers.push_back(&reader);
        Prefetch(reader.constraint);
    }
    for (const auto* reader : m_answers)
        Prefetch(&reader->constraint->target->activeEffects);
    for (const auto* reader : m_answers)
        Prefetch(reader->constraint->target->activeEffects.data());
    for (auto* reader : m_answers)
        Answer(*reader);
    m_answers.clear();
}

void ConstraintEngine::Answer(FeatureNode::Reader& reader)
{
    Constraint& constraint = *reader.constraint;
    if (!reader.changes) {
        if (constraint.active && constraint.defaultRow == Constraint::kNoRow)
            TellState(constraint);
        if (constraint.active && reader.condition == constraint.SourceOfForced())
            Unsettle(*constraint.target);
        return;
    }
    reader.holds = !reader.holds;
    if (reader.holds && --constraint.unmet == 0)
        Activate(constraint, true);
    else if (!reader.holds && constraint.unmet++ == 0)
        Activate(constraint, false);
}

void ConstraintEngine::Postpone(FeatureNode& feature)
{
    for (const auto& child : feature.Children())
        Postpone(*child);
    if (!feature.isPending && (!feature.readers.empty() || feature.isUnsettled)) {
        feature.isPending = true;
        m_pending.push_back(&feature);
    }
}

void ConstraintEngine::Unsettle(FeatureNode& feature)
{
    feature.isUnsettled = true;
    Postpone(feature);
}

void ConstraintEngine::Settle()
{
    while (!m_pending.empty()) {
        const auto next = std::min_element(
            m_pending.begin(), m_pending.end(),
            [](const FeatureNode* a, const FeatureNode* b) { return a->rank < b->rank; });
        FeatureNode& feature = **next;
        *next = m_pending.back();
        m_pending.pop_back();
        feature.isPending = false;
        if (std::exchange(feature.isUnsettled, false)) {
            FollowDefault(feature);
            FollowForce(feature);
        }
        AskReaders(feature);
    }
    TellStates();
}

void ConstraintEngine::FollowDefault(FeatureNode& feature)
{
    if (!feature.FollowsDefault())
        return;
    const FeatureValue& wanted = feature.CurrentDefault();
    const bool specified = wanted.index() != 0;
    const FeatureValue value = specified ? wanted : feature.StoredValue();
    if (feature.HasStored(value, specified))
        return;
    feature.Store(value, specified, true);
    m_changes.Note(feature, kValueBit);
    PresentChanged(feature);
}

void ConstraintEngine::FollowForce(FeatureNode& feature)
{
    // Of several the first in the package: rules stand from the device to the job.
    const auto governing = std::find_if(
        feature.effects.begin(), feature.effects.end(), [](const Constraint* constraint) {
            return constraint->active && constraint->kind == EffectKind::Force;
        });
    FeatureValue forced =
        governing != feature.effects.end() ? (*governing)->Forced() : FeatureValue();
    if (forced == feature.ForcedValue())
        return;
    feature.Force(std::move(forced));
    m_changes.Note(feature, kValueBit);
    PresentChanged(feature);
}

void ConstraintEngine::TellStates()
{
    for (Constraint* constraint : m_toggled) {
        constraint->toggled = false;
        if (constraint->active == constraint->activeBefore ||
            constraint->defaultRow != Constraint::kNoRow)
            continue;
        TellState(*constraint);
        if (constraint->target->isWayOut && constraint->Blocks())
            TellReaders(*constraint->target);
    }
    m_toggled.clear();
}

void ConstraintEngine::TellState(const Constraint& constraint)
{
    m_changes.Note(*constraint.target, kStateBit);
    if (constraint.onList)
        TellMembers(*constraint.target);
}

void ConstraintEngine::TellReaders(const FeatureNode& feature)
{
    // Their reasons name a way out that may be open or closed now.
    for (const auto& reader : feature.readers) {
        if (reader.holds && reader.constraint->active &&
            reader.constraint->defaultRow == Constraint::kNoRow)
            TellState(*reader.constraint);
    }
}

void ConstraintEngine::TellMembers(const FeatureNode& list)
{
    // A list hands its state down to what is in it.
    for (const auto& child : list.Children()) {
        m_changes.Note(*child, kStateBit);
        TellMembers(*child);
    }
}

} // namespace o7
