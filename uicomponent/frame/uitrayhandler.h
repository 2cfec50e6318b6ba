#pragma once

#include "uihandlerbase.h"

/// Observer of the tray features; belongs to the description builder, whose paper menus ask it.
class UITrayHandler : public UIHandlerBase
{
public:
    UITrayHandler() : UIHandlerBase(L"UITrayHandler") {}

    void setEventProcessor(UIEventProcessor* eventProcessor) { m_eventProcessor = eventProcessor; }
    UIEventProcessor* getEventProcessor() const { return m_eventProcessor; }

private:
    UIEventProcessor* m_eventProcessor = nullptr;
};
