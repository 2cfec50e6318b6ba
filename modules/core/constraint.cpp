#include "constraint.h"

#include "featurenode.h"

#include <tuple>

namespace o7 {

bool Constraint::Cause::Holds() const
{
    const FeatureValue* actual = feature->EffectiveValue();
    return actual == nullptr ? holdsWithoutValue || test.MatchesNothing() : test.Matches(*actual);
}

bool ComesBefore(const Constraint* a, const Constraint* b)
{
    const auto key = [](const Constraint* c) {
        return std::make_tuple(c->reason, std::string_view(c->id), c->target->Description().number);
    };
    return key(a) < key(b);
}

} // namespace o7
