#pragma once

#include "uihandlerbase.h"

/// Observer of the finishing features (stapling, punching, folding, booklets).
class UIFinishingHandler : public UIHandlerBase
{
public:
    UIFinishingHandler() : UIHandlerBase(L"UIFinishingHandler") {}
};
