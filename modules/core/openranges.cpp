#include "openranges.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace o7 {
namespace {

constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();

std::optional<std::int64_t> NumberOf(const FeatureValue& value)
{
    if (const auto* number = std::get_if<int>(&value))
        return *number;
    if (const auto* length = std::get_if<Dimension>(&value))
        return length->GetCount();
    return std::nullopt;
}

/// Cuts a part out of every range.
void TakeAway(std::vector<NumberRange>& ranges, const NumberRange& part)
{
    std::vector<NumberRange> left;
    for (const NumberRange& range : ranges) {
        if (part.high < range.low || part.low > range.high || part.low > part.high) {
            left.push_back(range);
            continue;
        }
        if (part.low > range.low)
            left.push_back({range.low, part.low - 1});
        if (part.high < range.high)
            left.push_back({part.high + 1, range.high});
    }
    ranges = std::move(left);
}

/// Leaves nothing but these parts, which may come in any order.
void LeaveOnly(std::vector<NumberRange>& ranges, std::vector<NumberRange> parts)
{
    std::sort(parts.begin(), parts.end(),
              [](const NumberRange& a, const NumberRange& b) { return a.low < b.low; });
    std::int64_t from = kLowest;
    for (const NumberRange& part : parts) {
        if (part.low > from)
            TakeAway(ranges, {from, part.low - 1});
        from = std::max(from, part.high + 1);
    }
    TakeAway(ranges, {from, kHighest});
}

/// Takes away what the test answers with yes.
void TakeMatching(const ValueTest& test, std::vector<NumberRange>& ranges)
{
    std::vector<NumberRange> parts;
    for (const FeatureValue& value : test.values) {
        const auto number = NumberOf(value);
        if (!number)
            return; // nothing that numbers could be compared with
        parts.push_back({*number, *number});
    }
    if (parts.empty())
        return;
    const auto bounds = std::minmax_element(
        parts.begin(), parts.end(),
        [](const NumberRange& a, const NumberRange& b) { return a.low < b.low; });
    const std::int64_t least = bounds.first->low;
    const std::int64_t most = bounds.second->low;
    switch (test.comparison) {
    case DataModelIds::kEqual:
        for (const NumberRange& part : parts)
            TakeAway(ranges, part);
        break;
    case DataModelIds::kNotEqual:
        LeaveOnly(ranges, std::move(parts));
        break;
    case DataModelIds::kLess:
        TakeAway(ranges, {kLowest, least - 1});
        break;
    case DataModelIds::kLessOrEqual:
        TakeAway(ranges, {kLowest, least});
        break;
    case DataModelIds::kGreater:
        TakeAway(ranges, {most + 1, kHighest});
        break;
    case DataModelIds::kGreaterOrEqual:
        TakeAway(ranges, {most, kHighest});
        break;
    case DataModelIds::kBetween:
        TakeAway(ranges, {parts.front().low, parts.back().low});
        break;
    case DataModelIds::kOutside:
        LeaveOnly(ranges, {{parts.front().low, parts.back().low}});
        break;
    default:
        break;
    }
}

} // namespace

std::vector<NumberRange> OpenRanges(const FeatureNode& feature, std::vector<NumberRange> ranges)
{
    std::vector<NumberRange> open = ranges;
    for (const auto& effect : feature.activeEffects)
        if (!effect.whole && effect.blocks)
            TakeMatching(effect.constraint->affected, open);
    return open.empty() ? std::move(ranges) : std::move(open);
}

} // namespace o7
