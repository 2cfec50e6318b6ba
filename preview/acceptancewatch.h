#pragma once

#include "featureservices.h"
#include "iobserver.h"

namespace o7 {

/// Notes whether the person accepted settings, with OK or with Apply. Asked of the data model's own
/// events, as the sheets of the different entries do not all tell how they were closed.
class AcceptanceWatch : public IObserver
{
public:
    /// Registers with the model, which must outlive the watch.
    explicit AcceptanceWatch(FeatureServices& model);
    AcceptanceWatch(const AcceptanceWatch&) = delete;
    AcceptanceWatch& operator=(const AcceptanceWatch&) = delete;
    ~AcceptanceWatch() override;

    bool accepted() const { return m_accepted; }

    void ProcessNotification(const INotification& notification, unsigned int kind) override;
    CXString GetObserverClassNameHeirarchy() const override;

private:
    FeatureServices& m_model;
    bool m_accepted = false;
};

} // namespace o7
