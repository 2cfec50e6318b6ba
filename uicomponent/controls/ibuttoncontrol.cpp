#include "ibuttoncontrol.h"

#include "uicontrol.h"

void IButtonControl::move(POINT delta)
{
    m_control->move(delta, false);
}

void IButtonControl::setShow(bool show)
{
    m_control->setShow(show);
}

void IButtonControl::setEnable(bool enable)
{
    m_control->setEnable(enable);
}
