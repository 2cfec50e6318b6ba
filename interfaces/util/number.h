#pragma once
// Number: an exact decimal number, independent of any locale.
//
// Stored as a whole count of billionths, so every decimal of up to nine places and every 32-bit
// integer is exact. The range is about +-9.2e9; results outside it stop at the limit, and a double
// that is not a number gives 0.

#include "cxstring.h"
#include "utilapi.h"

#include <compare>
#include <cstdint>

class O7UTIL_API Number
{
public:
    enum class Rounding
    {
        Nearest, ///< halves away from zero
        Down,    ///< towards minus infinity
        Up,      ///< towards plus infinity
        Truncate ///< towards zero
    };

    Number() noexcept = default;
    Number(int value) noexcept;
    Number(double value) noexcept;
    /// Text that is not a number gives 0; use TryParse where that matters.
    explicit Number(const CXString& text, wchar_t decimalSeparator = L'.') noexcept;

    /// Reads an optional sign, digits and at most one decimal separator, with white space around.
    /// Places after the ninth are rounded. False, and `result` untouched, for anything else or
    /// for a number out of range.
    static bool TryParse(const CXString& text, Number& result,
                         wchar_t decimalSeparator = L'.') noexcept;
    static Number FromBillionths(std::int64_t billionths) noexcept;
    std::int64_t GetBillionths() const noexcept { return m_billionths; }

    /// Stops at the limits of int.
    int GetIntValue(Rounding rounding = Rounding::Nearest) const noexcept;
    std::int64_t GetLongValue(Rounding rounding = Rounding::Nearest) const noexcept;
    double GetDoubleValue() const noexcept;
    /// With exactly `digits` places (0 to 9), rounded to nearest; with `trimZeros` zeros at the end
    /// and a bare separator are left out. Never "-0".
    CXString GetStringValue(int digits = 0, wchar_t decimalSeparator = L'.',
                            bool trimZeros = false) const;

    Number operator-() const noexcept;

    friend bool operator==(const Number& a, const Number& b) noexcept
    {
        return a.m_billionths == b.m_billionths;
    }
    friend std::strong_ordering operator<=>(const Number& a, const Number& b) noexcept
    {
        return a.m_billionths <=> b.m_billionths;
    }

private:
    std::int64_t m_billionths = 0;
};
