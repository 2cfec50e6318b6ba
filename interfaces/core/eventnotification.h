#pragma once

#include "eventid.h"
#include "inotification.h"

/// Something happened: OK, Apply, a page became active. Built by the UI and sent to the data
/// model's sink, which hands it on to those who registered for the event.
class EventNotification : public INotification
{
public:
    explicit EventNotification(EventId event, void* param = nullptr)
        : m_event(event), m_param(param)
    {
    }

    EventId GetEventId() const { return m_event; }

    /// What the sender passed along: borrowed, of a type that sender and receiver agree on per
    /// event, valid for the duration of the call. May be null.
    void* GetParam() const { return m_param; }

private:
    EventId m_event;
    void* m_param;
};
