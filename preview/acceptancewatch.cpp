#include "acceptancewatch.h"

#include "datamodelids.h"

namespace o7 {

AcceptanceWatch::AcceptanceWatch(FeatureServices& model) : m_model(model)
{
    m_model.RegisterForEvent(*this, EventId(DataModelIds::kEventAccepted),
                             DataModelIds::kObserverEvent);
}

AcceptanceWatch::~AcceptanceWatch()
{
    m_model.UnregisterForEvent(*this, EventId(DataModelIds::kEventAccepted),
                               DataModelIds::kObserverEvent);
}

/// Only the event registered above arrives, so what is in the bundle need not be looked at.
void AcceptanceWatch::ProcessNotification(const INotification&, unsigned int)
{
    m_accepted = true;
}

CXString AcceptanceWatch::GetObserverClassNameHeirarchy() const
{
    return L"AcceptanceWatch : IObserver";
}

} // namespace o7
