#include "valuetest.h"

#include <algorithm>
#include <compare>

namespace o7 {
namespace {

using Comparison = DataModelIds::tagComparisonEnum;

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
    default:
        return false;
    }
}

bool WithinBounds(const FeatureValue& actual, const std::vector<FeatureValue>& bounds)
{
    return std::is_gteq(Order(actual, bounds.front())) &&
           std::is_lteq(Order(actual, bounds.back()));
}

} // namespace

bool ValueTest::Matches(const FeatureValue& actual) const
{
    switch (comparison) {
    case DataModelIds::kEqual:
    case DataModelIds::kNotEqual:
        return (std::find(values.begin(), values.end(), actual) != values.end()) ==
               (comparison == DataModelIds::kEqual);
    case DataModelIds::kBetween:
        return values.size() == 2 && WithinBounds(actual, values);
    case DataModelIds::kOutside:
        return values.size() == 2 && !WithinBounds(actual, values);
    default:
        return !values.empty() &&
               std::all_of(values.begin(), values.end(), [&](const FeatureValue& value) {
                   return InOrder(Order(actual, value), comparison);
               });
    }
}

} // namespace o7
