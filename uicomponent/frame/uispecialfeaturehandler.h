#pragma once

#include "uihandlerbase.h"

/// Observer of the features that need the event processor to react (dialogs asked for by the
/// model).
class UISpecialFeatureHandler : public UIHandlerBase
{
public:
    UISpecialFeatureHandler() : UIHandlerBase(L"UISpecialFeatureHandler") {}

    int getSetting() const { return m_setting; }
    void setEventProcessor(UIEventProcessor* eventProcessor) { m_eventProcessor = eventProcessor; }
    UIEventProcessor* getEventProcessor() const { return m_eventProcessor; }

private:
    int m_setting = 6;
    UIEventProcessor* m_eventProcessor = nullptr;
};
