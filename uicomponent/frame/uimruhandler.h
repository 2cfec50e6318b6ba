#pragma once

#include "uihandlerbase.h"

/// Observer of the settings that are remembered as most recently used.
class UIMRUHandler : public UIHandlerBase
{
public:
    UIMRUHandler() : UIHandlerBase(L"UIMRUHandler") {}
};
