#pragma once

#include "uihandlerbase.h"

/// Observer of the image-shift features. It starts with both flags set and no setting chosen.
class UIOffsetHandler : public UIHandlerBase
{
public:
    UIOffsetHandler() : UIHandlerBase(L"UIOffsetHandler") {}

    bool isFirstFlagSet() const { return m_firstFlag; }
    bool isSecondFlagSet() const { return m_secondFlag; }
    int getSetting() const { return m_setting; }

private:
    bool m_firstFlag = true;
    bool m_secondFlag = true;
    int m_setting = -1;
};
