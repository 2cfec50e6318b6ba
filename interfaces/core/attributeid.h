#pragma once

#include "cxstring.h"
#include "datamodelids.h"

#include <string>

/// Identifies one attribute of the settings: a number of the data model, a name, or both.
/// Cheap to copy: a number and a shared string; an id made from a number holds no text.
/// Two ids are equal when both have a number and the numbers agree, or else when both have a name
/// and the names agree (and, for items of a list of values, the item keys agree too).
class AttributeId
{
public:
    static constexpr int kNoItem = -1;

    AttributeId() = default;
    explicit AttributeId(DataModelIds::tagFeatureEnum number) : m_number(number) {}
    explicit AttributeId(const CXString& name)
        : m_number(DataModelIds::kFeatureByName), m_name(name)
    {
    }
    AttributeId(DataModelIds::tagFeatureEnum number, const CXString& name, int item = kNoItem)
        : m_number(number), m_name(name), m_item(item)
    {
    }
    AttributeId(const AttributeId&) = default;
    AttributeId(AttributeId&&) = default;
    AttributeId& operator=(const AttributeId&) = default;
    AttributeId& operator=(AttributeId&&) = default;
    virtual ~AttributeId() = default;

    /// The attribute's number; kNoFeature for "nothing", kFeatureByName when only a name is known.
    virtual DataModelIds::tagFeatureEnum GetFeatureEnum() const { return m_number; }

    /// The full name; empty for an id that was made from a number (ids that come from a data model
    /// always carry their name).
    const CXString& GetName() const { return m_name; }

    /// The key of an item of a list of values, or kNoItem. Keys are never used twice in one list,
    /// so an id never silently comes to mean another item after a deletion.
    int GetItem() const { return m_item; }

    bool IsNone() const { return m_number == DataModelIds::kNoFeature; }

    friend bool operator==(const AttributeId& a, const AttributeId& b)
    {
        if (a.m_item != b.m_item)
            return false;
        const bool bothNumbered = a.m_number != DataModelIds::kFeatureByName &&
                                  b.m_number != DataModelIds::kFeatureByName;
        return bothNumbered ? a.m_number == b.m_number
                            : !a.m_name.IsEmpty() && a.m_name == b.m_name;
    }
    friend bool operator!=(const AttributeId& a, const AttributeId& b) { return !(a == b); }

private:
    DataModelIds::tagFeatureEnum m_number = DataModelIds::kNoFeature;
    CXString m_name;
    int m_item = kNoItem;
};
