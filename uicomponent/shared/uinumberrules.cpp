#include "uinumberrules.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "uitypednumber.h"
#include "uiunitnames.h"

namespace {

constexpr std::int64_t kBillion = 1'000'000'000;
constexpr UINumberRules::Range kWholeLimits{std::numeric_limits<int>::min(),
                                            std::numeric_limits<int>::max()};

bool isIn(const std::vector<UINumberRules::Range>& ranges, std::int64_t value)
{
    return std::any_of(ranges.begin(), ranges.end(), [value](const UINumberRules::Range& range) {
        return value >= range.low && value <= range.high;
    });
}

std::int64_t atLimit(bool negative)
{
    using Limits = std::numeric_limits<std::int64_t>;
    return negative ? Limits::min() : Limits::max();
}

std::int64_t sum(std::int64_t a, std::int64_t b)
{
    std::int64_t result = 0;
    return __builtin_add_overflow(a, b, &result) ? atLimit(b < 0) : result;
}

std::int64_t product(std::int64_t a, std::int64_t b)
{
    std::int64_t result = 0;
    return __builtin_mul_overflow(a, b, &result) ? atLimit((a < 0) != (b < 0)) : result;
}

/// To the nearest multiple, halves away from zero.
std::int64_t inMultiplesOf(std::int64_t unit, std::int64_t value)
{
    const std::int64_t half = value < 0 ? -(unit / 2) : unit / 2;
    return sum(value, half) / unit;
}

} // namespace

std::int64_t UINumberRules::countOfDigit(int digit) const
{
    if (!isLength)
        return 1;
    std::int64_t billionths = kBillion;
    for (int place = 0; place < digit; ++place)
        billionths /= 10;
    return std::max<std::int64_t>(1,
                                  Dimension(Number::FromBillionths(billionths), units).GetCount());
}

CXString UINumberRules::text(std::int64_t value) const
{
    if (isLength) {
        constexpr int kMoreDigits = 2;
        int exact = digits;
        while (exact < digits + kMoreDigits && value % countOfDigit(exact) != 0)
            ++exact;
        const bool isExact = value % countOfDigit(exact) == 0;
        return Dimension::FromCount(value, units)
            .GetStringValue(units, isExact ? exact : digits, decimalSeparator);
    }
    const auto whole = std::clamp(value, kWholeLimits.low, kWholeLimits.high);
    return Number(static_cast<int>(whole)).GetStringValue();
}

CXString UINumberRules::textWithUnit(std::int64_t value) const
{
    if (unitText.IsEmpty())
        return text(value);
    return text(value) + L"\u00A0" + unitText; // they stay on one line
}

UINumberRules::Reading UINumberRules::read(const CXString& typed, const UIUnitNames& names) const
{
    const UITypedNumber number = UITypedNumber::read(typed, decimalSeparator);
    if (number.fault == UITypedNumber::Fault::Empty)
        return {Fault::Empty};
    if (number.fault != UITypedNumber::Fault::None)
        return {Fault::NotANumber};
    Reading reading = isLength ? readLength(number.unit, number.number, names)
                               : readWhole(number.unit, number.number);
    if (reading.fault != Fault::None || allows(reading.value))
        return reading;
    // What is written like an allowed value is that value: an end of the range that is shown
    // rounded can be typed as it is shown.
    const std::int64_t allowed = nearest(reading.value);
    if (text(allowed) != text(reading.value))
        reading.fault = isSupported(reading.value) ? Fault::NotNow : Fault::OutOfRange;
    reading.value = allowed;
    return reading;
}

UINumberRules::Reading UINumberRules::readWhole(const CXString& unit, const Number& number) const
{
    // Without a unit of its own, a word behind the number is no unit at all.
    if (!unit.IsEmpty() && (unitText.IsEmpty() || unit.CompareNoCase(unitText) != 0))
        return {unitText.IsEmpty() ? Fault::NotANumber : Fault::UnknownUnit};
    if (number.GetBillionths() % kBillion != 0 &&
        std::abs(number.GetBillionths()) != std::numeric_limits<std::int64_t>::max())
        return {Fault::NotWhole};
    return {Fault::None, number.GetLongValue()};
}

UINumberRules::Reading UINumberRules::readLength(const CXString& unit, const Number& number,
                                                 const UIUnitNames& names) const
{
    UIUnitNames::Unit meant{units, 1};
    if (!unit.IsEmpty() && unit.CompareNoCase(unitText) != 0) {
        const auto found = names.find(unit);
        if (!found)
            return {Fault::UnknownUnit};
        meant = *found;
    }
    const std::int64_t count = product(Dimension(number, meant.units).GetCount(), meant.factor);
    return {Fault::None, product(inMultiplesOf(grid, count), grid)};
}

bool UINumberRules::allows(std::int64_t value) const
{
    if (ranges.empty())
        return isLength || (value >= kWholeLimits.low && value <= kWholeLimits.high);
    return isIn(ranges, value);
}

bool UINumberRules::isSupported(std::int64_t value) const
{
    return isIn(supported, value);
}

bool UINumberRules::writesLike(const UINumberRules& other) const
{
    UINumberRules like = other;
    like.ranges = ranges;
    like.supported = supported;
    return *this == like;
}

std::int64_t UINumberRules::nearest(std::int64_t value) const
{
    if (ranges.empty())
        return isLength ? value : std::clamp(value, kWholeLimits.low, kWholeLimits.high);
    std::int64_t best = std::clamp(value, ranges.front().low, ranges.front().high);
    const auto distance = [value](std::int64_t other) {
        return std::abs(static_cast<double>(value) - static_cast<double>(other));
    };
    for (const Range& range : ranges) {
        const std::int64_t inRange = std::clamp(value, range.low, range.high);
        if (distance(inRange) < distance(best))
            best = inRange;
    }
    return best;
}

std::int64_t UINumberRules::step(std::int64_t value, std::int64_t steps) const
{
    const std::int64_t digit = lastDigit();
    const std::int64_t shown = inMultiplesOf(digit, value);
    const std::int64_t target = product(sum(shown, product(steps, increment)), digit);
    const std::int64_t stored = product(inMultiplesOf(grid, target), grid);
    if (ranges.empty())
        return nearest(stored);
    if (steps >= 0) {
        for (const Range& range : ranges)
            if (stored <= range.high)
                return std::max(stored, range.low);
        return ranges.back().high;
    }
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range)
        if (stored >= range->low)
            return std::min(stored, range->high);
    return ranges.front().low;
}

int UINumberRules::position(std::int64_t value) const
{
    return static_cast<int>(
        std::clamp(inMultiplesOf(lastDigit(), value), kWholeLimits.low, kWholeLimits.high));
}

int UINumberRules::longestText() const
{
    constexpr int kWithoutLimits = 11;
    const std::vector<Range>& all = supported.empty() ? ranges : supported;
    if (all.empty())
        return kWithoutLimits;
    return std::max(text(all.front().low).GetLength(), text(all.back().high).GetLength());
}
