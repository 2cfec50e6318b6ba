#include "constraintbinding.h"

#include "featurenode.h"
#include "valuecode.h"

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

void BindConditions(const std::vector<ConditionDescription>& when, FeatureNode& list,
                    Constraint& constraint)
{
    for (const ConditionDescription& condition : when) {
        constraint.when.push_back({FindOutwards(list, condition.feature).shared_from_this(),
                                   condition.test, condition.holdsWithoutValue});
    }
}

using Constraints = std::vector<std::unique_ptr<Constraint>>;

void BindDefaults(FeatureNode& feature, Constraints& bound)
{
    const auto& rows = feature.Description().defaults;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        auto row = std::make_unique<Constraint>();
        BindConditions(rows[i].when, *feature.Parent(), *row);
        row->target = &feature;
        row->defaultRow = static_cast<int>(i);
        bound.push_back(std::move(row));
    }
}

} // namespace

void FinishConstraint(Constraint& constraint)
{
    const FeatureDescription& target = constraint.target->Description();
    constraint.onList = target.list != nullptr || target.item != nullptr;
    constraint.whole = constraint.affected.values.empty();
    if (!constraint.whole && constraint.target->IsCoded())
        constraint.affectedCodes = MaskOf(target, constraint.affected, false);
}

void BindConstraints(FeatureNode& feature)
{
    const FeatureDescription& description = feature.Description();
    Constraints bound;
    BindDefaults(feature, bound);
    const std::vector<ConstraintDescription> none;
    for (const ConstraintDescription& declared :
         description.list ? description.list->constraints : none) {
        auto constraint = std::make_unique<Constraint>();
        BindConditions(declared.when, feature, *constraint);
        constraint->target = &FindOutwards(feature, declared.target);
        constraint->affected = declared.affected;
        constraint->kind = declared.kind;
        constraint->forced = declared.forced;
        constraint->reason = declared.reason;
        constraint->id = declared.id;
        FinishConstraint(*constraint);
        bound.push_back(std::move(constraint));
    }
    feature.constraints = std::move(bound); // all of them or none
}

} // namespace o7
