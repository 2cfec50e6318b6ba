#include "uispincontroldata.h"

std::int32_t UISpinControlData::getIncrement(bool /*metric*/) const
{
    return m_extra->increment;
}

std::int32_t UISpinControlData::getDigits(bool /*metric*/) const
{
    return 0;
}

std::uint32_t UISpinControlData::getUnitLabel(bool /*metric*/) const
{
    return m_extra->unitLabel;
}
