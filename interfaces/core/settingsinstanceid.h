#pragma once

#include "datamodelids.h"

/// Which settings an observer registers for, or which side of them a notification tells of.
class SettingsInstanceId
{
public:
    explicit constexpr SettingsInstanceId(DataModelIds::SettingsEnum number) : m_number(number) {}

    constexpr DataModelIds::SettingsEnum GetSettingsEnum() const { return m_number; }

    friend constexpr bool operator==(SettingsInstanceId a, SettingsInstanceId b)
    {
        return a.m_number == b.m_number;
    }
    friend constexpr bool operator!=(SettingsInstanceId a, SettingsInstanceId b)
    {
        return !(a == b);
    }

private:
    DataModelIds::SettingsEnum m_number;
};
