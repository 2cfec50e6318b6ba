#pragma once

#include "featureid.h"

/// Identifies one value of an option feature, by number, or by name for values that exist only by
/// name (user-defined papers). Default-constructed it is "no value". Cheap to copy.
/// Ids that come from a data model carry name and display string; one that was made from a number
/// is for comparing and writing, and shows itself as "#<number>".
class ValueId
{
public:
    ValueId() = default;
    // Implicit on purpose: numbers of values are written wherever a value is meant.
    ValueId(DataModelIds::tagValueEnum number) : m_number(number) {}
    /// A value of `feature` that is known by its name.
    ValueId(const FeatureId& feature, const CXString& name)
        : m_number(DataModelIds::kValueByName), m_feature(feature), m_name(name)
    {
    }
    /// For data models: everything that is known of a value.
    ValueId(DataModelIds::tagValueEnum number, const FeatureId& feature, const CXString& name,
            const CXString& displayString)
        : m_number(number), m_feature(feature), m_name(name), m_displayString(displayString)
    {
    }

    DataModelIds::tagValueEnum GetValueEnum() const { return m_number; }
    const FeatureId& GetFeatureId() const { return m_feature; }

    /// The value's name, such as "two-sided-long-edge"; a user's text for values from 9579 on.
    const CXString& GetValueName() const { return m_name; }

    /// The localised text that a list or combo box shows; never empty except for "no value".
    CXString GetDisplayString() const
    {
        if (!m_displayString.IsEmpty())
            return m_displayString;
        if (!m_name.IsEmpty())
            return m_name;
        if (m_number == DataModelIds::kNoValue)
            return CXString();
        return CXString((L"#" + std::to_wstring(m_number)).c_str());
    }

    /// "<feature leaf name>=<value name>": the form in which job tickets and logs name the value.
    CXString GetAsCpssString() const
    {
        std::wstring text =
            m_feature.IsNone() ? std::wstring() : m_feature.GetFeatureLeafName().c_str();
        text += L"=";
        text += m_name.IsEmpty() ? std::to_wstring(m_number) : std::wstring(m_name.c_str());
        return CXString(text.c_str());
    }

    friend bool operator==(const ValueId& a, const ValueId& b)
    {
        const bool bothNumbered =
            a.m_number != DataModelIds::kValueByName && b.m_number != DataModelIds::kValueByName;
        if (!bothNumbered)
            return !a.m_name.IsEmpty() && a.m_name == b.m_name;
        if (a.m_number != b.m_number)
            return false;
        // User texts share a number; an id without a name means whichever there is.
        return a.m_number < DataModelIds::kValueFirstUserText || a.m_name.IsEmpty() ||
               b.m_name.IsEmpty() || a.m_name == b.m_name;
    }
    friend bool operator!=(const ValueId& a, const ValueId& b) { return !(a == b); }

private:
    DataModelIds::tagValueEnum m_number = DataModelIds::kNoValue;
    FeatureId m_feature;
    CXString m_name;
    CXString m_displayString;
};
