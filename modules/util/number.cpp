#include "number.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "casing.h"

namespace {

constexpr std::int64_t kOne = 1'000'000'000;
constexpr int kPlaces = 9;
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

constexpr std::int64_t powerOfTen(int exponent)
{
    std::int64_t power = 1;
    for (int i = 0; i < exponent; ++i) {
        power *= 10;
    }
    return power;
}

// To a whole multiple of `step`, halves away from zero; stops at the limit.
std::int64_t roundToStep(std::int64_t value, std::int64_t step)
{
    const std::int64_t rest = value % step;
    const std::int64_t whole = value - rest;
    if (rest < step - step / 2 && rest > -(step - step / 2)) {
        return whole;
    }
    if (rest > 0) {
        return whole > kLargest - step ? whole : whole + step;
    }
    return whole < -kLargest + step ? whole : whole - step;
}

bool isDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

std::wstring_view trimmed(std::wstring_view text)
{
    while (!text.empty() && o7::isWhiteSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && o7::isWhiteSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

// Reads digits onto `magnitude`, which counts units of `unit`. False when it overflows.
bool addWhole(std::wstring_view digits, std::int64_t& magnitude)
{
    std::int64_t whole = 0;
    for (const wchar_t digit : digits) {
        whole = whole * 10 + (digit - L'0');
        if (whole > kLargest / kOne) {
            return false;
        }
    }
    magnitude = whole * kOne;
    return true;
}

bool addFraction(std::wstring_view digits, std::int64_t& magnitude)
{
    std::int64_t fraction = 0;
    std::int64_t unit = kOne;
    for (const wchar_t digit : digits.substr(0, std::min<std::size_t>(digits.size(), kPlaces))) {
        unit /= 10;
        fraction += (digit - L'0') * unit;
    }
    if (digits.size() > kPlaces && digits[kPlaces] >= L'5') {
        ++fraction;
    }
    if (magnitude > kLargest - fraction) {
        return false;
    }
    magnitude += fraction;
    return true;
}

} // namespace

Number::Number(int value) noexcept : m_billionths(value * kOne)
{
}

Number::Number(double value) noexcept
{
    const double scaled = std::round(value * static_cast<double>(kOne));
    const auto limit = static_cast<double>(kLargest); // rounds up to 2^63
    if (std::isnan(scaled)) {
        m_billionths = 0;
    } else if (scaled >= limit || scaled <= -limit) {
        m_billionths = scaled > 0 ? kLargest : -kLargest;
    } else {
        m_billionths = static_cast<std::int64_t>(scaled);
    }
}

Number::Number(const CXString& text, wchar_t decimalSeparator) noexcept
{
    TryParse(text, *this, decimalSeparator);
}

bool Number::TryParse(const CXString& text, Number& result, wchar_t decimalSeparator) noexcept
{
    std::wstring_view rest = trimmed(text.View());
    const bool negative = !rest.empty() && rest.front() == L'-';
    if (!rest.empty() && (negative || rest.front() == L'+')) {
        rest.remove_prefix(1);
    }
    const std::size_t separator = std::min(rest.find(decimalSeparator), rest.size());
    const std::wstring_view whole = rest.substr(0, separator);
    const std::wstring_view fraction =
        separator < rest.size() ? rest.substr(separator + 1) : std::wstring_view();
    if ((whole.empty() && fraction.empty()) || !std::all_of(whole.begin(), whole.end(), isDigit) ||
        !std::all_of(fraction.begin(), fraction.end(), isDigit)) {
        return false;
    }
    std::int64_t magnitude = 0;
    if (!addWhole(whole, magnitude) || !addFraction(fraction, magnitude)) {
        return false;
    }
    result.m_billionths = negative ? -magnitude : magnitude;
    return true;
}

Number Number::FromBillionths(std::int64_t billionths) noexcept
{
    Number number;
    number.m_billionths = std::max(billionths, -kLargest); // so that every number can be negated
    return number;
}

int Number::GetIntValue(Rounding rounding) const noexcept
{
    const std::int64_t value = GetLongValue(rounding);
    return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                     std::numeric_limits<int>::max()));
}

std::int64_t Number::GetLongValue(Rounding rounding) const noexcept
{
    const std::int64_t whole = m_billionths / kOne;
    const std::int64_t rest = m_billionths % kOne;
    switch (rounding) {
    case Rounding::Down:
        return rest < 0 ? whole - 1 : whole;
    case Rounding::Up:
        return rest > 0 ? whole + 1 : whole;
    case Rounding::Nearest:
        return whole + (rest >= kOne / 2 ? 1 : rest <= -kOne / 2 ? -1 : 0);
    case Rounding::Truncate:
        break;
    }
    return whole;
}

double Number::GetDoubleValue() const noexcept
{
    return static_cast<double>(m_billionths) / static_cast<double>(kOne);
}

CXString Number::GetStringValue(int digits, wchar_t decimalSeparator, bool trimZeros) const
{
    const int places = std::clamp(digits, 0, kPlaces);
    const std::int64_t rounded = roundToStep(m_billionths, powerOfTen(kPlaces - places));
    const std::int64_t magnitude = rounded < 0 ? -rounded : rounded;
    std::wstring text = std::to_wstring(magnitude / kOne);
    std::wstring fraction = std::to_wstring(magnitude % kOne + kOne).substr(1);
    fraction.resize(static_cast<std::size_t>(places));
    if (trimZeros) {
        fraction.resize(fraction.find_last_not_of(L'0') + 1);
    }
    if (!fraction.empty()) {
        text += decimalSeparator;
        text += fraction;
    }
    if (rounded < 0) {
        text.insert(0, 1, L'-');
    }
    return CXString(std::wstring_view(text));
}

Number Number::operator-() const noexcept
{
    return FromBillionths(-m_billionths);
}
