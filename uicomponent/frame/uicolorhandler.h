#pragma once

#include "uihandlerbase.h"

/// Observer of the colour-adjustment features.
class UIColorHandler : public UIHandlerBase
{
public:
    UIColorHandler() : UIHandlerBase(L"UIColorHandler") {}

    unsigned getState() const { return m_state; }

private:
    unsigned m_state = 0;
};
