#pragma once

#include "datamodelids.h"

/// One event of the data model, such as OK, Apply or a button press.
class EventId
{
public:
    explicit constexpr EventId(DataModelIds::EventEnum number) : m_number(number) {}

    constexpr DataModelIds::EventEnum GetEventEnum() const { return m_number; }

    friend constexpr bool operator==(EventId a, EventId b) { return a.m_number == b.m_number; }
    friend constexpr bool operator!=(EventId a, EventId b) { return !(a == b); }

private:
    DataModelIds::EventEnum m_number;
};
