#pragma once

#include "inotification.h"

/// Where the UI tells the data model that something happened.
class INotificationSink
{
public:
    virtual ~INotificationSink() = default;

    /// Takes EventNotification and EventWithFeatureNotification, alone or in a bundle, and ignores
    /// everything else. Before the call returns, the event is delivered to those who registered for
    /// it, and then acted upon: what they write when told of OK is accepted with the rest.
    virtual void SendNotification(const INotification& notification) = 0;
};
