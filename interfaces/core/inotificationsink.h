#pragma once

#include "inotification.h"

/// Where the UI tells the data model that something happened.
class INotificationSink
{
public:
    virtual ~INotificationSink() = default;

    /// Takes EventNotification and EventWithFeatureNotification, alone or in a bundle, and ignores
    /// everything else. Acts on the event, then delivers it to those who registered for it, before
    /// the call returns.
    virtual void SendNotification(const INotification& notification) = 0;
};
