#include "dimension.h"

#include <cmath>
#include <limits>

namespace {

constexpr std::int64_t kBillion = 1'000'000'000;
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

constexpr std::int64_t countsPer(Dimension::UnitsEnum units)
{
    switch (units) {
    case Dimension::UnitsEnum::Millimetre:
        return 36'000'000;
    case Dimension::UnitsEnum::TenthOfMillimetre:
        return 3'600'000;
    case Dimension::UnitsEnum::Point:
        return 12'700'000;
    case Dimension::UnitsEnum::Inch:
        break;
    }
    return 914'400'000;
}

static_assert(countsPer(Dimension::UnitsEnum::Inch) * 10 ==
              countsPer(Dimension::UnitsEnum::Millimetre) * 254);
static_assert(countsPer(Dimension::UnitsEnum::Inch) == countsPer(Dimension::UnitsEnum::Point) * 72);

// value * to / from for positive `to` and `from` of at most a billion, halves away from zero; stops
// at the limit. Whole and rest go apart, so that nothing overflows on the way.
std::int64_t rescale(std::int64_t value, std::int64_t to, std::int64_t from)
{
    const std::int64_t whole = value / from;
    const std::int64_t rest = value % from;
    const std::int64_t scaledRest = (rest * to + (rest < 0 ? -from / 2 : from / 2)) / from;
    const std::int64_t most = (kLargest - to) / to;
    if (whole > most || whole < -most) {
        return whole > 0 ? kLargest : -kLargest;
    }
    return whole * to + scaledRest;
}

} // namespace

Dimension::Dimension(const Number& value, UnitsEnum units) noexcept
{
    SetValue(value, units);
}

Dimension::Dimension(int value, UnitsEnum units) noexcept
{
    SetValue(Number(value), units);
}

Dimension::Dimension(double value, UnitsEnum units) noexcept
{
    SetValue(Number(value), units);
}

void Dimension::SetValue(const Number& value, UnitsEnum units) noexcept
{
    m_count = rescale(value.GetBillionths(), countsPer(units), kBillion);
    m_units = units;
}

Number Dimension::GetValue(UnitsEnum units) const noexcept
{
    return Number::FromBillionths(rescale(m_count, kBillion, countsPer(units)));
}

double Dimension::GetDoubleValue(UnitsEnum units) const noexcept
{
    return static_cast<double>(m_count) / static_cast<double>(countsPer(units));
}

CXString Dimension::GetStringValue(UnitsEnum units, int digits, wchar_t decimalSeparator,
                                   bool trimZeros) const
{
    return GetValue(units).GetStringValue(digits, decimalSeparator, trimZeros);
}

void Dimension::ReverseSign() noexcept
{
    m_count = -m_count;
}

Dimension Dimension::FromCount(std::int64_t count, UnitsEnum units) noexcept
{
    Dimension dimension;
    dimension.m_count = count < -kLargest ? -kLargest : count;
    dimension.m_units = units;
    return dimension;
}
