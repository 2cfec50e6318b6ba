// The part of the data model that takes constraints at run time.
#include "datamodel.h"
#include "valuetext.h"

#include <utility>

namespace o7 {
namespace {

/// Values are completed by the feature they are compared with, so that equal values are equal.
ValueTest TestOf(const FeatureNode& feature, const Condition& condition)
{
    ValueTest test{condition.GetComparison(), {}};
    for (const ValueFactory& value : condition.GetValues().GetValues()) {
        test.values.push_back(value.GetValue());
        feature.Description().Accepts(test.values.back());
    }
    return test;
}

std::string Key(const FeatureNode& feature, const ValueTest& test)
{
    std::string key = feature.GetId().Dump(true).ToUtf8();
    key.append(" ").append(std::to_string(test.comparison));
    for (const FeatureValue& value : test.values)
        key.append(" ").append(PlainText(value));
    return key;
}

/// A name by which such constraints are told in the same order, whenever they were added.
std::string IdOf(const Constraint& constraint)
{
    std::string id = "added";
    for (const Constraint::Cause& cause : constraint.when)
        id.append("; ").append(Key(*cause.feature, cause.test));
    return id.append(" -> ").append(Key(*constraint.target, constraint.affected));
}

} // namespace

bool DataModel::AddConstraint(const ConstraintMkII& constraint)
{
    return AddConstraint({constraint.GetWhen()}, constraint.GetMustNotHold(),
                         constraint.GetOptions());
}

bool DataModel::AddConstraint(const std::vector<Condition>& when, const Condition& mustNotHold,
                              const ConstraintMkIIOptions& options)
{
    auto constraint = std::make_unique<Constraint>();
    for (const Condition& condition : when) {
        auto* cause = FindNode(condition.GetFeature());
        if (cause == nullptr || !IsLeaf(*cause))
            return false;
        constraint->when.push_back({cause->shared_from_this(), TestOf(*cause, condition),
                                    condition.GetOptions().holdsWithoutValue});
    }
    auto* target = FindNode(mustNotHold.GetFeature());
    // An empty set has no values to forbid; excluding none of them forbids all.
    const bool nothing =
        mustNotHold.GetValues().IsEmpty() && mustNotHold.GetComparison() != DataModelIds::kNotEqual;
    // A value to force cannot be told here.
    if (target == nullptr || !IsLeaf(*target) || constraint->when.empty() || nothing ||
        options.effect == EffectKind::Force)
        return false;
    constraint->target = target;
    constraint->targetOwner = target->shared_from_this();
    constraint->affected = TestOf(*target, mustNotHold);
    constraint->kind = options.effect;
    constraint->reason = options.reasonStringNumber;
    constraint->id = IdOf(*constraint);
    return Operate([&] { return m_engine.Add(std::move(constraint)); });
}

} // namespace o7
