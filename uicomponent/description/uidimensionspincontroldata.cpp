#include "uidimensionspincontroldata.h"

std::int32_t UIDimensionSpinControlData::getIncrement(bool metric) const
{
    return metric ? m_extra->metricIncrement : m_extra->inchIncrement;
}

std::int32_t UIDimensionSpinControlData::getDigits(bool metric) const
{
    return metric ? m_extra->metricDigits : m_extra->inchDigits;
}

std::uint32_t UIDimensionSpinControlData::getUnitLabel(bool metric) const
{
    return metric ? m_extra->metricUnitLabel : m_extra->inchUnitLabel;
}
