#pragma once

#include "changelog.h"
#include "eventnotification.h"
#include "featurenode.h"
#include "registration.h"

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace o7 {

/// Knows who observes what and delivers bundles. Observers may do anything while they are notified.
class Notifier
{
public:
    /// `node` is null for a feature that does not exist; that registration is only remembered.
    void Register(IObserver& observer, DataModelIds::SettingsEnum instance,
                  const FeatureIdWithContext& feature, unsigned kind, FeatureNode* node);
    void Unregister(IObserver& observer, DataModelIds::SettingsEnum instance,
                    const FeatureIdWithContext& feature, unsigned kind);

    void RegisterForEvent(IObserver& observer, DataModelIds::EventEnum event, unsigned kind);
    void UnregisterForEvent(IObserver& observer, DataModelIds::EventEnum event, unsigned kind);

    /// One bundle to each observer concerned, in the order in which observers first registered. An
    /// observer's exception does not keep the others from being told; the first is then rethrown.
    /// False when there is no memory to tell anybody; nobody was told then.
    bool Deliver(const std::vector<Change>& changes);
    void DeliverEvent(const EventNotification& event);

private:
    struct Entry
    {
        std::shared_ptr<Registration> registration;
        FeatureNode* feature;
        unsigned bits;
    };
    struct EventRegistration
    {
        IObserver* observer;
        unsigned kind;
        bool alive;
    };
    struct ObserverEntry
    {
        std::uint64_t serial = 0;
        std::vector<std::shared_ptr<Registration>> registrations;
    };

    /// A change of one feature that nobody watches through a list around it goes the short way.
    /// False when it is something else.
    static bool PrepareAlone(const Change& change);
    static void DeliverAlone(const Change& change);
    static void DeliverRuns(std::vector<Entry>& entries);
    static void Gather(const Change& change, std::vector<Entry>& entries);
    static void DeliverRun(const Entry* first, const Entry* last);
    /// The bundle that a feature keeps for a change of just itself.
    static const NotificationBundle& KeptBundle(FeatureNode& feature, unsigned bits);
    static NotificationBundle MakeBundle(const Entry* first, const Entry* last);

    std::unordered_map<IObserver*, ObserverEntry> m_observers;
    std::unordered_map<int, std::vector<std::shared_ptr<EventRegistration>>> m_events;
    std::uint64_t m_nextSerial = 1;
};

} // namespace o7
