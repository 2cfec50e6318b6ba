#include "notifier.h"

#include "counted.h"
#include "featurechangenotification.h"
#include "room.h"

#include <algorithm>
#include <array>
#include <exception>
#include <new>

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
                                                      const FeatureIdWithContext& registered)
{
    const bool value = bit == kValueBit;
    return std::make_shared<FeatureChangeNotification>(
        SettingsInstanceId(value ? DataModelIds::kSettingsValue
                                 : DataModelIds::kSettingsConstraintState),
        FeatureChangeId(value ? DataModelIds::kFeatureValueChanged
                              : DataModelIds::kFeatureConstraintStateChanged),
        id, registered);
}

bool Same(const Registration& registration, DataModelIds::SettingsEnum instance,
          const FeatureIdWithContext& feature, unsigned kind)
{
    return registration.instance == instance && registration.kind == kind &&
           registration.feature == feature;
}

/// By observer and kind: who shares both gets one bundle.
bool ComesBefore(const Registration& a, const Registration& b)
{
    return a.serial != b.serial ? a.serial < b.serial : a.kind < b.kind;
}

void Rebuild(const FeatureNode& feature)
{
    auto sorted = feature.registrations;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return ComesBefore(*a, *b); });
    DeliveryList& list = *feature.delivery;
    list.slots.clear();
    for (const auto& registration : sorted)
        list.slots.push_back(
            {registration->observer, registration->kind, WantedBits(registration->instance)});
    list.valid = true;
    list.simple =
        std::adjacent_find(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) {
            return !ComesBefore(*a, *b);
        }) == sorted.end();
}

/// Takes an observer out of a delivery that may be under way.
void StrikeOut(DeliveryList& list, const IObserver& observer, unsigned kind)
{
    list.valid = false;
    for (DeliveryList::Slot& slot : list.slots) {
        if (slot.observer == &observer && slot.kind == kind)
            slot.observer = nullptr;
    }
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
    auto registration = std::make_shared<Registration>();
    registration->observer = &observer;
    registration->instance = instance;
    registration->feature = feature;
    registration->kind = kind;
    // Registered in both places or in none: who was told of a failure does not unregister.
    MakeRoom(entry.registrations, entry.registrations.size() + 1);
    if (node != nullptr) {
        if (!node->delivery)
            node->delivery = std::make_unique<DeliveryList>();
        MakeRoom(node->registrations, node->registrations.size() + 1);
        registration->node = node->weak_from_this();
        node->registrations.push_back(registration);
        node->delivery->valid = false;
    }
    if (entry.serial == 0)
        entry.serial = m_nextSerial++;
    registration->serial = entry.serial;
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
    if (const auto node = (*found)->node.lock()) {
        std::erase(node->registrations, *found);
        StrikeOut(*node->delivery, observer, kind);
    }
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
    const auto registered = m_events.find(event);
    if (registered == m_events.end())
        return;
    auto& registrations = registered->second;
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
    for (FeatureNode* node = change.feature; node != nullptr; node = node->Parent()) {
        for (const auto& registration : node->registrations) {
            const unsigned bits = change.bits & WantedBits(registration->instance);
            if (bits != 0)
                entries.push_back({registration, change.feature, bits});
        }
    }
}

bool Notifier::PrepareAlone(const Change& change)
{
    FeatureNode& feature = *change.feature;
    for (const FeatureNode* list = feature.Parent(); list != nullptr; list = list->Parent()) {
        if (!list->registrations.empty())
            return false;
    }
    if (feature.registrations.empty())
        return true;
    DeliveryList& list = *feature.delivery;
    if (!list.valid && list.deliveries == 0)
        Rebuild(feature);
    if (!list.valid || !list.simple)
        return false;
    for (unsigned bits = 1; bits < list.bundles.size(); ++bits) {
        if ((bits & change.bits) == bits)
            KeptBundle(feature, bits);
    }
    return true;
}

void Notifier::DeliverAlone(const Change& change)
{
    FeatureNode& feature = *change.feature;
    if (feature.registrations.empty())
        return;
    DeliveryList& list = *feature.delivery;
    const Counted counted(list.deliveries);
    const unsigned changed = change.bits;
    std::array<const NotificationBundle*, 4> bundles{};
    for (unsigned bits = 1; bits < bundles.size(); ++bits)
        bundles[bits] = (bits & changed) == bits ? &KeptBundle(feature, bits) : nullptr;
    CallAll call;
    for (const DeliveryList::Slot& slot : list.slots) {
        const unsigned bits = changed & slot.wanted;
        if (bits != 0 && slot.observer != nullptr)
            call([&] { slot.observer->ProcessNotification(*bundles[bits], slot.kind); });
    }
    call.Rethrow();
}

bool Notifier::Deliver(const std::vector<Change>& changes)
{
    if (m_observers.empty())
        return true;
    bool alone = false;
    std::vector<Entry> entries;
    try {
        alone = changes.size() == 1 && PrepareAlone(changes.front());
        for (const Change& change : changes) {
            if (!alone)
                Gather(change, entries);
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    if (alone)
        DeliverAlone(changes.front());
    else
        DeliverRuns(entries);
    return true;
}

void Notifier::DeliverRuns(std::vector<Entry>& entries)
{
    const auto before = [](const Entry& a, const Entry& b) {
        return ComesBefore(*a.registration, *b.registration);
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
    const Registration& registration = *alive->registration;
    // The change keeps its feature, and with it the bundle, during the call.
    const bool alone = last - first == 1 && registration.node.lock().get() == first->feature;
    if (alone)
        registration.observer->ProcessNotification(KeptBundle(*first->feature, first->bits),
                                                   registration.kind);
    else
        registration.observer->ProcessNotification(MakeBundle(first, last), registration.kind);
}

const NotificationBundle& Notifier::KeptBundle(FeatureNode& feature, unsigned bits)
{
    auto& kept = feature.delivery->bundles.at(bits);
    if (!kept) {
        auto bundle = std::make_unique<NotificationBundle>();
        for (const unsigned bit : {kValueBit, kStateBit}) {
            if ((bits & bit) != 0)
                bundle->Add(MakeNotification(bit, feature.GetId(), feature.GetId()));
        }
        kept = std::move(bundle);
    }
    return *kept;
}

NotificationBundle Notifier::MakeBundle(const Entry* first, const Entry* last)
{
    NotificationBundle bundle;
    for (const Entry* entry = first; entry != last; ++entry) {
        for (const unsigned bit : {kValueBit, kStateBit}) {
            if (entry->registration->alive && (entry->bits & bit) != 0)
                bundle.Add(
                    MakeNotification(bit, entry->feature->GetId(), entry->registration->feature));
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
