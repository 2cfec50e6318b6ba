#pragma once

#include "eventnotification.h"
#include "featureidwithcontext.h"

/// An event that belongs to a feature, such as the press of a button that stands beside it.
class EventWithFeatureNotification : public EventNotification
{
public:
    EventWithFeatureNotification(EventId event, const FeatureIdWithContext& feature,
                                 void* param = nullptr)
        : EventNotification(event, param), m_feature(feature)
    {
    }

    const FeatureIdWithContext& GetFeatureIdWithContext() const { return m_feature; }
    DataModelIds::tagFeatureEnum GetFeatureEnum() const { return m_feature.GetFeatureEnum(); }

private:
    FeatureIdWithContext m_feature;
};
