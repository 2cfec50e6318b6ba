#include "notifier.h"

#include "featurechangenotification.h"

#include <algorithm>
#include <exception>

namespace o7 {
namespace {

/// Which changes a registration of this settings instance asks for.
unsigned WantedBits(DataModelIds::SettingsEnum instance)
{
    switch (instance) {
    case DataModelIds::kSettingsCurrent:
        return kValueBit | kStateBit;
    case DataModelIds::kSettingsValue:
        return kValueBit;
    case DataModelIds::kSettingsConstraintState:
        return kStateBit;
    }
    return 0;
}

std::shared_ptr<const INotification> MakeNotification(unsigned bit, const FeatureIdWithContext& id,
                                                      const Registration& registration)
{
    const bool value = bit == kValueBit;
    return std::make_shared<FeatureChangeNotification>(
        SettingsInstanceId(value ? DataModelIds::kSettingsValue
                                 : DataModelIds::kSettingsConstraintState),
        FeatureChangeId(value ? DataModelIds::kFeatureValueChanged
                              : DataModelIds::kFeatureConstraintStateChanged),
        id, registration.feature);
}

bool Same(const Registration& registration, DataModelIds::SettingsEnum instance,
          const FeatureIdWithContext& feature, unsigned kind)
{
    return registration.instance == instance && registration.kind == kind &&
           registration.feature == feature;
}

/// Calls one after the other; the first exception waits until everybody was called.
class CallAll
{
public:
    template <typename Call> void operator()(const Call& call)
    {
        try {
            call();
        } catch (...) {
            if (!m_first)
                m_first = std::current_exception();
        }
    }
    void Rethrow() const
    {
        if (m_first)
            std::rethrow_exception(m_first);
    }

private:
    std::exception_ptr m_first;
};

} // namespace

void Notifier::Register(IObserver& observer, DataModelIds::SettingsEnum instance,
                        const FeatureIdWithContext& feature, unsigned kind, FeatureNode* node)
{
    ObserverEntry& entry = m_observers[&observer];
    for (const auto& known : entry.registrations) {
        if (Same(*known, instance, feature, kind)) {
            ++known->count;
            return;
        }
    }
    if (entry.serial == 0)
        entry.serial = m_nextSerial++;
    auto registration = std::make_shared<Registration>();
    registration->observer = &observer;
    registration->instance = instance;
    registration->feature = feature;
    registration->kind = kind;
    registration->serial = entry.serial;
    if (node != nullptr) {
        registration->node = node->weak_from_this();
        registration->self = node;
        node->registrations.push_back(registration);
    }
    entry.registrations.push_back(std::move(registration));
}

void Notifier::Unregister(IObserver& observer, DataModelIds::SettingsEnum instance,
                          const FeatureIdWithContext& feature, unsigned kind)
{
    const auto entry = m_observers.find(&observer);
    if (entry == m_observers.end())
        return;
    auto& registrations = entry->second.registrations;
    const auto found =
        std::find_if(registrations.begin(), registrations.end(), [&](const auto& registration) {
            return Same(*registration, instance, feature, kind);
        });
    if (found == registrations.end() || --(*found)->count > 0)
        return;
    (*found)->alive = false;
    if (const auto node = (*found)->node.lock())
        std::erase(node->registrations, *found);
    registrations.erase(found);
    if (registrations.empty())
        m_observers.erase(entry);
}

void Notifier::RegisterForEvent(IObserver& observer, DataModelIds::EventEnum event, unsigned kind)
{
    m_events[event].push_back(
        std::make_shared<EventRegistration>(EventRegistration{&observer, kind, true}));
}

void Notifier::UnregisterForEvent(IObserver& observer, DataModelIds::EventEnum event, unsigned kind)
{
    auto& registrations = m_events[event];
    const auto found = std::find_if(registrations.begin(), registrations.end(), [&](const auto& r) {
        return r->observer == &observer && r->kind == kind;
    });
    if (found == registrations.end())
        return;
    (*found)->alive = false;
    registrations.erase(found);
}

void Notifier::Gather(const Change& change, std::vector<Entry>& entries)
{
    for (FeatureNode* node = change.feature.get(); node != nullptr; node = node->Parent()) {
        for (const auto& registration : node->registrations) {
            const unsigned bits = change.bits & WantedBits(registration->instance);
            if (bits != 0)
                entries.push_back({registration, change.feature.get(), bits});
        }
    }
}

void Notifier::Deliver(const std::vector<Change>& changes)
{
    std::vector<Entry> entries;
    for (const Change& change : changes)
        Gather(change, entries);
    const auto before = [](const Entry& a, const Entry& b) {
        return a.registration->serial != b.registration->serial
                   ? a.registration->serial < b.registration->serial
                   : a.registration->kind < b.registration->kind;
    };
    if (!std::is_sorted(entries.begin(), entries.end(), before))
        std::stable_sort(entries.begin(), entries.end(), before);
    CallAll call;
    for (auto first = entries.begin(); first != entries.end();) {
        const auto last = std::find_if(first, entries.end(),
                                       [&](const Entry& entry) { return before(*first, entry); });
        call([&] { DeliverRun(&*first, &*first + (last - first)); });
        first = last;
    }
    call.Rethrow();
}

void Notifier::DeliverRun(const Entry* first, const Entry* last)
{
    // Whoever was told before may have unregistered or destroyed this observer.
    const Entry* const alive =
        std::find_if(first, last, [](const Entry& entry) { return entry.registration->alive; });
    if (alive == last)
        return;
    IObserver& observer = *alive->registration->observer;
    // The entries keep their registrations, and with them the bundle, alive during the call.
    if (const NotificationBundle* kept = KeptBundle(first, last))
        observer.ProcessNotification(*kept, alive->registration->kind);
    else
        observer.ProcessNotification(MakeBundle(first, last), alive->registration->kind);
}

const NotificationBundle* Notifier::KeptBundle(const Entry* first, const Entry* last)
{
    Registration& registration = *first->registration;
    if (last - first != 1 || registration.self != first->feature ||
        first->bits == (kValueBit | kStateBit))
        return nullptr;
    auto& kept = first->bits == kValueBit ? registration.valueBundle : registration.stateBundle;
    if (!kept)
        kept = std::make_unique<NotificationBundle>(
            std::vector{MakeNotification(first->bits, first->feature->GetId(), registration)});
    return kept.get();
}

NotificationBundle Notifier::MakeBundle(const Entry* first, const Entry* last)
{
    NotificationBundle bundle;
    for (const Entry* entry = first; entry != last; ++entry) {
        for (const unsigned bit : {kValueBit, kStateBit}) {
            if (entry->registration->alive && (entry->bits & bit) != 0)
                bundle.Add(MakeNotification(bit, entry->feature->GetId(), *entry->registration));
        }
    }
    return bundle;
}

void Notifier::DeliverEvent(const EventNotification& event)
{
    const auto registrations = m_events.find(event.GetEventId().GetEventEnum());
    if (registrations == m_events.end())
        return;
    // The sender keeps the event; the bundle only points at it for the duration of the calls.
    NotificationBundle bundle;
    bundle.Add(std::shared_ptr<const INotification>(std::shared_ptr<void>(), &event));
    const auto copy = registrations->second;
    CallAll call;
    for (const auto& registration : copy) {
        if (registration->alive)
            call([&] { registration->observer->ProcessNotification(bundle, registration->kind); });
    }
    call.Rethrow();
}

} // namespace o7
