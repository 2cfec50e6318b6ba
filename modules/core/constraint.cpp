#include "constraint.h"

#include "featurenode.h"

#include <algorithm>
#include <compare>

namespace o7 {
namespace {

std::partial_ordering Order(const FeatureValue& a, const FeatureValue& b)
{
    if (const auto* left = std::get_if<int>(&a), *right = std::get_if<int>(&b);
        left != nullptr && right != nullptr)
        return *left <=> *right;
    if (const auto* left = std::get_if<Dimension>(&a), *right = std::get_if<Dimension>(&b);
        left != nullptr && right != nullptr)
        return *left <=> *right;
    return std::partial_ordering::unordered;
}

bool InOrder(std::partial_ordering order, Comparison comparison)
{
    switch (comparison) {
    case DataModelIds::kLess:
        return std::is_lt(order);
    case DataModelIds::kLessOrEqual:
        return std::is_lteq(order);
    case DataModelIds::kGreater:
        return std::is_gt(order);
    case DataModelIds::kGreaterOrEqual:
        return std::is_gteq(order);
    case DataModelIds::kEqual:
    case DataModelIds::kNotEqual:
        break;
    }
    return false;
}

bool Matches(const FeatureValue& actual, Comparison comparison,
             const std::vector<FeatureValue>& values)
{
    if (comparison == DataModelIds::kEqual || comparison == DataModelIds::kNotEqual) {
        const bool found = std::find(values.begin(), values.end(), actual) != values.end();
        return found == (comparison == DataModelIds::kEqual);
    }
    return !values.empty() && std::all_of(values.begin(), values.end(), [&](const auto& value) {
        return InOrder(Order(actual, value), comparison);
    });
}

} // namespace

bool Constraint::Cause::Holds() const
{
    const FeatureValue* actual = feature->EffectiveValue();
    if (actual == nullptr)
        return holdsWithoutValue || comparison == DataModelIds::kNotEqual;
    return Matches(*actual, comparison, values);
}

bool Constraint::Affects(const FeatureValue& value) const
{
    return Matches(value, comparison, values);
}

bool Constraint::ConditionsHold() const
{
    return std::all_of(when.begin(), when.end(), [](const Cause& cause) { return cause.Holds(); });
}

bool Constraint::Blocks() const
{
    return kind == EffectKind::Disable || kind == EffectKind::Clear || kind == EffectKind::Hide;
}

} // namespace o7
