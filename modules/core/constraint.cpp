#include "constraint.h"

#include "featurenode.h"

#include <tuple>

namespace o7 {

bool Constraint::Cause::Holds() const
{
    const FeatureValue* actual = feature->EffectiveValue();
    return actual == nullptr ? holdsWithoutValue || test.MatchesNothing() : test.Matches(*actual);
}

bool Constraint::IsBroken() const
{
    return (whole ? active && kind == EffectKind::Conflict : hit && kind != EffectKind::Info) &&
           !target->IsIdle();
}

FeatureValue Constraint::Forced() const
{
    if (forced.side == ForcedValue::Side::None)
        return forced.value;
    const FeatureNode& medium = *when.back().feature;
    const auto* size = medium.Description().SizeOf(medium.EffectiveValue());
    if (size == nullptr)
        return {};
    const Dimension& side = forced.side == ForcedValue::Side::Width ? size->first : size->second;
    return Dimension::FromCount(side.GetCount(),
                                target->Description().units.value_or(side.GetUnits()));
}

bool ComesBefore(const Constraint* a, const Constraint* b)
{
    const auto key = [](const Constraint* c) {
        return std::make_tuple(c->reason, std::string_view(c->id), c->target->Description().number);
    };
    return key(a) < key(b);
}

} // namespace o7
