#include "constraintreader.h"

#include "jsonfields.h"

#include <utility>

namespace o7 {
namespace {

constexpr std::array<Named<EffectKind>, 7> kEffects = {{
    {"disable", EffectKind::Disable},
    {"clear", EffectKind::Clear},
    {"hide", EffectKind::Hide},
    {"info", EffectKind::Info},
    {"conflict", EffectKind::Conflict},
    {"force", EffectKind::Force},
    {"require", EffectKind::Require},
}};

} // namespace

void ConstraintReader::Fail(const LocatedJson& at, std::string message)
{
    m_faults.push_back({at.line, std::move(message)});
}

std::vector<ConstraintDescription> ConstraintReader::ReadConstraint(const LocatedJson& json,
                                                                    const Scope& scope)
{
    ConstraintDescription constraint;
    constraint.id = Text(*json.Find("id"));
    constraint.line = json.line;
    constraint.reason = static_cast<unsigned>(Int(*json.Find("reason")));
    if (!m_ids.insert(constraint.id).second)
        Fail(json, "the constraint id " + json.Find("id")->ToText() + " is used twice");
    const auto* when = json.Find("when");
    const auto* effect = json.Find("effect");
    const auto* never = json.Find("never");
    if (never != nullptr && when == nullptr && effect == nullptr)
        return ReadNever(json, scope, constraint);
    if (never != nullptr || when == nullptr || effect == nullptr || json.Find("limit") != nullptr) {
        Fail(json, "expected either \"when\" with \"effect\", or \"never\"");
        return {};
    }
    constraint.when = ReadConditions(*when, scope);
    ReadEffect(*effect, scope, constraint);
    return {std::move(constraint)};
}

std::vector<ConditionDescription> ConstraintReader::ReadConditions(const LocatedJson& json,
                                                                   const Scope& scope)
{
    std::vector<ConditionDescription> conditions;
    for (const LocatedJson& entry : Entries(json))
        conditions.push_back(ReadCondition(entry, scope));
    return conditions;
}

ConditionDescription ConstraintReader::ReadCondition(const LocatedJson& json, const Scope& scope)
{
    ConditionDescription condition;
    const auto* feature = FindFeature(*json.Find("feature"), scope);
    if (feature == nullptr)
        return condition;
    condition.feature = feature->number;
    const std::size_t faults = m_faults.size();
    condition.test = m_values.ReadTest(json, *feature, "is");
    if (condition.test.values.empty() && m_faults.size() == faults)
        Fail(json, "expected a question: \"is\", \"isNot\", \"compare\", \"between\", \"outside\", "
                   "\"sizeWithin\" or \"sizeOutside\"");
    if (const auto* nothing = json.Find("orWithoutValue"))
        condition.holdsWithoutValue = *nothing->As<bool>();
    return condition;
}

void ConstraintReader::ReadEffect(const LocatedJson& json, const Scope& scope,
                                  ConstraintDescription& constraint)
{
    constraint.kind = ByName(kEffects, Text(*json.Find("kind")));
    const auto* target = FindFeature(*json.Find("feature"), {scope.back()});
    if (target == nullptr)
        return;
    constraint.target = target->number;
    constraint.affected = m_values.ReadTest(json, *target, "options");
    if (constraint.kind == EffectKind::Require && !constraint.affected.values.empty())
        Fail(json, "kind \"require\" concerns the whole feature");
    ReadForced(json, scope, *target, constraint);
}

void ConstraintReader::ReadForced(const LocatedJson& json, const Scope& scope,
                                  const FeatureDescription& target,
                                  ConstraintDescription& constraint)
{
    const bool forces = constraint.kind == EffectKind::Force;
    const auto* value = json.Find("to");
    const auto* width = json.Find("toWidthOf");
    const auto* height = json.Find("toHeightOf");
    const int told = (value != nullptr) + (width != nullptr) + (height != nullptr);
    if (told != (forces ? 1 : 0) || (forces && !constraint.affected.values.empty())) {
        Fail(json, "expected one of \"to\", \"toWidthOf\" and \"toHeightOf\" with kind "
                   "\"force\", without values that are affected; and none of them elsewhere");
        return;
    }
    if (!forces)
        return;
    if (value != nullptr) {
        const std::size_t faults = m_faults.size();
        constraint.forced.value = m_values.ReadInitial(*value, target);
        if (constraint.forced.value.index() == 0 && m_faults.size() == faults)
            Fail(*value, NameOf(target) + ": expected a value to force");
        return;
    }
    const auto* medium = FindFeature(width != nullptr ? *width : *height, scope);
    if (medium == nullptr)
        return;
    constraint.forced.side =
        width != nullptr ? ForcedValue::Side::Width : ForcedValue::Side::Height;
    if (target.kind != FeatureKind::Dimension)
        Fail(json, NameOf(target) + ": expected a dimension to take a side of a medium");
    AddMedia(json, *medium, constraint);
}

void ConstraintReader::AddMedia(const LocatedJson& json, const FeatureDescription& medium,
                                ConstraintDescription& constraint)
{
    // It holds only for media that have a size.
    ConditionDescription sized;
    sized.feature = medium.number;
    for (const OptionDescription& option : medium.options) {
        if (option.size)
            sized.test.values.emplace_back(
                ValueId(option.number, medium.Id(), option.name, CXString()));
    }
    if (sized.test.values.empty())
        Fail(json, NameOf(medium) + " has no option with a size");
    constraint.when.push_back(std::move(sized));
}

std::vector<ConstraintDescription> ConstraintReader::ReadNever(const LocatedJson& json,
                                                               const Scope& scope,
                                                               const ConstraintDescription& common)
{
    const std::vector<ConditionDescription> together = ReadConditions(*json.Find("never"), scope);
    const std::set<FeatureEnum> limited = ReadLimit(json, scope);
    std::vector<ConstraintDescription> constraints;
    for (std::size_t i = 0; i < together.size(); ++i) {
        const ConditionDescription& last = together[i];
        // What lies in a list around this one is never limited from inside.
        if (limited.count(last.feature) == 0)
            continue;
        ConstraintDescription constraint = common;
        constraint.target = last.feature;
        constraint.affected = last.test;
        for (std::size_t other = 0; other < together.size(); ++other) {
            if (other != i)
                constraint.when.push_back(together[other]);
        }
        constraints.push_back(std::move(constraint));
    }
    if (constraints.empty())
        Fail(json, "\"never\" limits no feature of this list");
    return constraints;
}

std::set<FeatureEnum> ConstraintReader::ReadLimit(const LocatedJson& json, const Scope& scope)
{
    std::set<FeatureEnum> limited;
    if (const auto* limit = json.Find("limit")) {
        for (const LocatedJson& entry : Entries(*limit)) {
            if (const auto* feature = FindFeature(entry, {scope.back()}))
                limited.insert(feature->number);
        }
        return limited;
    }
    for (const FeatureDescription& feature : scope.back()->features)
        limited.insert(feature.number);
    return limited;
}

void ConstraintReader::ReadDefaults(const LocatedJson& json, const Scope& scope,
                                    FeatureDescription& feature)
{
    const auto* rows = json.Find("defaults");
    if (rows == nullptr)
        return;
    if (feature.kind == FeatureKind::ListOfFeatures || feature.kind == FeatureKind::ListOfValues) {
        Fail(*rows, NameOf(feature) + ": a list has no default");
        return;
    }
    for (const LocatedJson& row : Entries(*rows)) {
        AdaptingDefault adapting{ReadConditions(*row.Find("when"), scope),
                                 m_values.ReadInitial(*row.Find("value"), feature), row.line};
        if (adapting.value.index() == 0 && feature.flags.required)
            Fail(row, NameOf(feature) + ": required, so a default is expected");
        feature.defaults.push_back(std::move(adapting));
    }
}

const FeatureDescription* ConstraintReader::FindFeature(const LocatedJson& reference,
                                                        const Scope& scope)
{
    for (auto list = scope.rbegin(); list != scope.rend(); ++list) {
        const auto* name = reference.As<std::string>();
        const auto* found = name != nullptr ? (*list)->Find(CXString::FromUtf8(*name))
                            : FitsInt(reference)
                                ? (*list)->Find(static_cast<FeatureEnum>(Int(reference)))
                                : nullptr;
        if (found != nullptr)
            return found;
    }
    Fail(reference, "unknown feature " + reference.ToText() +
                        ", expected the number or name of a feature of this list");
    return nullptr;
}

} // namespace o7
