#pragma once

#include "featurevalue.h"

/// One value of any kind, written as what it is: a value enum or id, a whole number, a text, a
/// boolean, a range, or a length.
class ValueFactory
{
public:
    // Implicit on purpose, as these stand in lists of values.
    ValueFactory(DataModelIds::tagValueEnum value) : m_value(ValueId(value)) {}
    ValueFactory(const ValueId& value) : m_value(value) {}
    ValueFactory(int value) : m_value(value) {}
    ValueFactory(const CXString& value) : m_value(value) {}
    ValueFactory(const wchar_t* value) : m_value(CXString(value)) {}
    ValueFactory(bool value) : m_value(value) {}
    ValueFactory(const RangeOfInteger& value) : m_value(value) {}
    ValueFactory(const Dimension& value) : m_value(value) {}

    const o7::FeatureValue& GetValue() const { return m_value; }

private:
    o7::FeatureValue m_value;
};
