#include "numberranges.h"

#include "uiservices.h"

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

std::vector<UINumberRules::Range> supportedRanges(const RangeCapability& capability,
                                                  std::int64_t grid)
{
    std::vector<UINumberRules::Range> ranges;
    for (const RangeOfInteger& range : capability.GetSupportedRanges())
        ranges.push_back({range.GetLowerBound() * grid, range.GetUpperBound() * grid});
    return ranges;
}

UINumberRules wholeNumberRules(const RangeCapability& capability, const UIServices& services)
{
    UINumberRules rules;
    rules.decimalSeparator = services.getRegionalSettings().decimalSeparator;
    rules.ranges = numberRanges(capability);
    rules.supported = supportedRanges(capability);
    return rules;
}

} // namespace o7
