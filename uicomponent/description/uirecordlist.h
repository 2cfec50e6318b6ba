#pragma once

#include <cstddef>

/// A read-only view of a static array of records: pointer and count. It is made from the array
/// itself, so the count cannot be wrong, and it may name a record type that is still incomplete,
/// so a molecule record can list molecule records. It never owns; the arrays are static.
template <class T> struct UIRecords
{
    const T* first = nullptr;
    std::size_t count = 0;

    constexpr UIRecords() = default;
    template <std::size_t N> constexpr UIRecords(const T (&array)[N]) : first(array), count(N) {}

    constexpr const T* begin() const { return first; }
    constexpr const T* end() const { return first + count; }
    constexpr std::size_t size() const { return count; }
    constexpr bool empty() const { return count == 0; }
    constexpr const T& operator[](std::size_t index) const { return first[index]; }
};
