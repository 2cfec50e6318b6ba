#pragma once

#include <cstdint>
#include <vector>

#include "cxstring.h"
#include "dimension.h"

class UIUnitNames;

/// What may stand in a field for a number: which values are allowed, how they are written, and what
/// a typed text comes to. A value is a whole number or, for a length, the count of Dimension. No
/// window; the molecule of the field fills it from its feature and from the person's settings.
struct UINumberRules
{
    struct Range
    {
        std::int64_t low;
        std::int64_t high;
        bool operator==(const Range&) const = default;
    };

    enum class Fault
    {
        None,
        Empty,
        NotANumber,
        UnknownUnit,
        NotWhole,
        OutOfRange,
        NotNow ///< the product has it, but another setting rules it out
    };

    struct Reading
    {
        Fault fault = Fault::None;
        std::int64_t value = 0; ///< also of a number that is not allowed: the nearest allowed one
    };

    std::vector<Range> ranges;    ///< what can be chosen now, rising; none: no limits
    std::vector<Range> supported; ///< what the product has; none: the same
    wchar_t decimalSeparator = L'.';
    std::int64_t increment = 1; ///< one step, counted in the last digit shown
    CXString unitText;          ///< what stands behind the box, and may be typed

    bool isLength = false;
    Dimension::UnitsEnum units = Dimension::UnitsEnum::Millimetre; ///< in which a length is shown
    int digits = 0;                                                ///< behind the separator
    std::int64_t grid = 1; ///< a length is stored in multiples of this count

    /// The value as it is shown, without its unit; and with it, for sentences. A length that takes
    /// one or two digits more to be exact gets them.
    CXString text(std::int64_t value) const;
    CXString textWithUnit(std::int64_t value) const;
    Reading read(const CXString& typed, const UIUnitNames& names) const;
    bool allows(std::int64_t value) const;
    std::int64_t nearest(std::int64_t value) const;
    /// The value so many steps on, counted from what is shown; it passes over what is not allowed
    /// and stops at the ends.
    std::int64_t step(std::int64_t value, std::int64_t steps) const;
    /// The value counted in the last digit shown, for controls that count in whole numbers.
    int position(std::int64_t value) const;
    /// The most characters that a value takes, ruled out now or not.
    int longestText() const;
    /// Whether values are written alike: all but the ranges is the same.
    bool writesLike(const UINumberRules& other) const;

    bool operator==(const UINumberRules&) const = default;

private:
    bool isSupported(std::int64_t value) const;
    Reading readWhole(const CXString& unit, const Number& number) const;
    Reading readLength(const CXString& unit, const Number& number, const UIUnitNames& names) const;
    /// The length that one counts in that digit behind the separator.
    std::int64_t countOfDigit(int digit) const;
    std::int64_t lastDigit() const { return countOfDigit(digits); }
};
