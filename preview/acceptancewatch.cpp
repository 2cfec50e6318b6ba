#include "acceptancewatch.h"

#include <array>

#include "datamodelids.h"

namespace o7 {
namespace {

constexpr std::array kAcceptingEvents{DataModelIds::kEventOk, DataModelIds::kEventApply};

} // namespace

AcceptanceWatch::AcceptanceWatch(FeatureServices& model) : m_model(model)
{
    for (const auto event : kAcceptingEvents) {
        m_model.RegisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
    }
}

AcceptanceWatch::~AcceptanceWatch()
{
    for (const auto event : kAcceptingEvents) {
        m_model.UnregisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
    }
}

/// Only the events registered above arrive, so what is in the bundle need not be looked at.
void AcceptanceWatch::ProcessNotification(const INotification&, unsigned int)
{
    m_accepted = true;
}

CXString AcceptanceWatch::GetObserverClassNameHeirarchy() const
{
    return L"AcceptanceWatch : IObserver";
}

} // namespace o7
