#pragma once

#include "valuefactory.h"

#include <initializer_list>
#include <utility>
#include <vector>

/// The values that a condition compares with; empty, or any number of values of one kind.
class ValSet
{
public:
    ValSet() = default;
    ValSet(std::initializer_list<ValueFactory> values) : m_values(values) {}
    explicit ValSet(std::vector<ValueFactory> values) : m_values(std::move(values)) {}

    void Add(const ValueFactory& value) { m_values.push_back(value); }
    bool IsEmpty() const { return m_values.empty(); }
    const std::vector<ValueFactory>& GetValues() const { return m_values; }

private:
    std::vector<ValueFactory> m_values;
};
