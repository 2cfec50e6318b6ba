#pragma once

#include "uihandlerbase.h"

/// Observer of the features that guard colour printing with a PIN.
class UIColorAccessPinHandler : public UIHandlerBase
{
public:
    UIColorAccessPinHandler() : UIHandlerBase(L"UIColorAccessPinHandler") {}

    unsigned getState() const { return m_state; }

private:
    unsigned m_state = 0;
};
