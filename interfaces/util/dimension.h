#pragma once
// Dimension: a length with the unit in which it is shown.
//
// Stored as a whole count of 1/914,400,000 inch. That is 36,000,000 counts a millimetre, 3,600,000
// a tenth of a millimetre and 12,700,000 a point, so decimals of up to five places are exact in
// every unit, changing the unit loses nothing, and a value read in any unit and set again in it
// gives the same length. The range is about +-1e10 inches, beyond which values stop at the limit.
// Comparisons compare lengths, whatever the units.

#include "cxstring.h"
#include "number.h"
#include "utilapi.h"

#include <compare>
#include <cstdint>

class O7UTIL_API Dimension
{
public:
    enum class UnitsEnum
    {
        Inch,
        Millimetre,
        TenthOfMillimetre,
        Point ///< 1/72 inch
    };

    Dimension() noexcept = default;
    Dimension(const Number& value, UnitsEnum units) noexcept;
    Dimension(int value, UnitsEnum units) noexcept;
    Dimension(double value, UnitsEnum units) noexcept;

    /// The unit in which the dimension was set or is to be shown.
    UnitsEnum GetUnits() const noexcept { return m_units; }
    /// Changes the unit alone; the length stays.
    void SetUnits(UnitsEnum units) noexcept { m_units = units; }
    void SetValue(const Number& value, UnitsEnum units) noexcept;

    /// Stops at the limits of Number.
    Number GetValue(UnitsEnum units) const noexcept;
    Number GetValue() const noexcept { return GetValue(m_units); }
    double GetDoubleValue(UnitsEnum units) const noexcept;
    /// As Number::GetStringValue, without the name of the unit.
    CXString GetStringValue(UnitsEnum units, int digits, wchar_t decimalSeparator = L'.',
                            bool trimZeros = false) const;
    void ReverseSign() noexcept;

    /// The stored count, for files and settings blocks.
    std::int64_t GetCount() const noexcept { return m_count; }
    static Dimension FromCount(std::int64_t count, UnitsEnum units) noexcept;

    friend bool operator==(const Dimension& a, const Dimension& b) noexcept
    {
        return a.m_count == b.m_count;
    }
    friend std::strong_ordering operator<=>(const Dimension& a, const Dimension& b) noexcept
    {
        return a.m_count <=> b.m_count;
    }

private:
    std::int64_t m_count = 0;
    UnitsEnum m_units = UnitsEnum::Inch;
};
