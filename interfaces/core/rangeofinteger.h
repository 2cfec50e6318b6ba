#pragma once

/// An inclusive range of whole numbers.
class RangeOfInteger
{
public:
    constexpr RangeOfInteger() = default;
    constexpr RangeOfInteger(int lower, int upper) : m_lower(lower), m_upper(upper) {}

    constexpr int GetLowerBound() const { return m_lower; }
    constexpr int GetUpperBound() const { return m_upper; }
    constexpr bool Contains(int value) const { return value >= m_lower && value <= m_upper; }

    friend constexpr bool operator==(RangeOfInteger a, RangeOfInteger b)
    {
        return a.m_lower == b.m_lower && a.m_upper == b.m_upper;
    }

private:
    int m_lower = 0;
    int m_upper = 0;
};
