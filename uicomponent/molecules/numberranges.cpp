#include "numberranges.h"

namespace o7 {

std::vector<UINumberRules::Range> numberRanges(const RangeCapability& capability, std::int64_t grid)
{
    const auto scaled = [grid](const RangeOfInteger& range) {
        return UINumberRules::Range{range.GetLowerBound() * grid, range.GetUpperBound() * grid};
    };
    if (capability.GetNumberOfValues() == 0)
        return {};
    if (capability.GetNumberOfValues() == 1)
        return {scaled(capability.GetLargestAndSmallestRangeValues())};
    std::vector<UINumberRules::Range> ranges;
    for (std::size_t index = 0; index < capability.GetNumberOfValues(); ++index)
        ranges.push_back(scaled(capability.GetRangeValueByIndex(index)));
    return ranges;
}

} // namespace o7
