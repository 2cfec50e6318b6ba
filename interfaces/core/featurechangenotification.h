#pragma once

#include "featurechangeid.h"
#include "featureidwithcontext.h"
#include "inotification.h"
#include "settingsinstanceid.h"

/// A feature's value (settings instance 23002, feature change 22001) or constraint state (23004,
/// 22002) changed.
class FeatureChangeNotification : public INotification
{
public:
    FeatureChangeNotification(SettingsInstanceId instance, FeatureChangeId change,
                              const FeatureIdWithContext& changed,
                              const FeatureIdWithContext& registered)
        : m_instance(instance), m_change(change), m_changed(changed), m_registered(registered)
    {
    }

    SettingsInstanceId GetSettingsInstanceId() const { return m_instance; }
    FeatureChangeId GetFeatureChangeId() const { return m_change; }

    /// The setting that changed.
    const FeatureIdWithContext& GetSettingIdWithContext() const { return m_changed; }

    /// The setting for which the receiver registered: the same, or a list around it.
    const FeatureIdWithContext& GetOriginallyRegisteredSetting() const { return m_registered; }

private:
    SettingsInstanceId m_instance;
    FeatureChangeId m_change;
    FeatureIdWithContext m_changed;
    FeatureIdWithContext m_registered;
};
