#pragma once

#include "changeproposal.h"
#include "eventid.h"
#include "featureref.h"
#include "iconstraintsintegrator.h"
#include "inotificationsink.h"
#include "iobserver.h"
#include "lengthformat.h"
#include "listoffeaturesref.h"
#include "settingsinstanceid.h"
#include "transactionref.h"

#include <memory>
#include <vector>

/// The data model as the UI sees it. Abstract, so that any data model can stand behind it; borrowed
/// by everything in the UI for the UI's life. One thread only: the one that runs the dialog.
///
/// Notifications: outside any transaction a write notifies before it returns; inside one, when the
/// transaction closes. Each observer gets one NotificationBundle at a time, with the kind it
/// registered with as second argument. While it is notified an observer may write, open and close
/// transactions, register and unregister itself or others, and be destroyed (after unregistering).
///
/// The order of the virtual operations is part of the interface: slots 1 to 7, the destructor, then
/// further operations; additions go to the end.
class FeatureServices
{
public:
    /// Slot 1. From now on deliver the changes of this feature, and of everything inside it when it
    /// is a list, to the observer, which is borrowed until it unregisters. `instance` selects what:
    /// 23001 values and constraint states, 23002 values, 23004 constraint states. The no-feature id
    /// stands for the full list. A feature that does not exist (yet) is fine. Registering the same
    /// four twice counts twice but delivers once.
    virtual void RegisterObserver(IObserver& observer, SettingsInstanceId instance,
                                  const FeatureIdWithContext& feature, unsigned int kind) = 0;

    /// Slot 2. The exact inverse, with the same four arguments; without a match it does nothing.
    virtual void UnregisterObserver(IObserver& observer, SettingsInstanceId instance,
                                    const FeatureIdWithContext& feature, unsigned int kind) = 0;

    /// Slot 3. Whether the feature applies: the product has it and no constraint hides it (or a
    /// list around it).
    virtual bool TestFeature(const FeatureIdWithContext& feature) = 0;

    /// Slot 4. The list in which features of this context are looked up: the list that `context`
    /// designates, or the list around it when it designates something else; the full list for the
    /// no-feature id.
    virtual ListOfFeaturesRef GetListOfFeaturesFor(const FeatureIdWithContext& context) = 0;

    /// Slot 5. The feature as the reference class that fits its kind; never null.
    virtual std::unique_ptr<FeatureRef> GetFeatureRef(const FeatureIdWithContext& feature) = 0;

    /// Slot 6.
    virtual OptionFeatureRef GetOptionFeatureRef(const FeatureIdWithContext& feature) = 0;

    /// Slot 7. Never null. `purpose` names the transaction in diagnostics.
    virtual std::unique_ptr<TransactionRef> OpenTransaction(const CXString& purpose = {}) = 0;

    virtual ~FeatureServices() = default;

    /// Brings the model into a state that can be shown: pending evaluation done, pending
    /// notifications delivered. Cheap when there is nothing to do.
    virtual void SettleBeforeDisplay() = 0;

    /// All features of the product, at the top level.
    virtual ListOfFeaturesRef GetFullListOfFeatures() = 0;

    /// The list of features with this number, wherever it is nested outside lists of values;
    /// designates nothing when there is none.
    virtual ListOfFeaturesRef GetListOfFeaturesByGroup(DataModelIds::tagFeatureEnum group) = 0;

    /// Where events are sent; belongs to the model. 21002 and 21004 are told to their observers,
    /// then make the current settings the accepted ones, unless feature 545 has value 8691
    /// (rejected) by then or an observer threw, which the sender learns; then observers are told of
    /// 21901, when to store. 21003 brings the accepted settings back.
    virtual INotificationSink& GetNotificationSink() = 0;

    /// Whether a setting differs from the accepted ones (not UI-private or state-only features).
    virtual bool IsModified() const = 0;

    /// Makes the current settings the accepted ones.
    virtual void CommitAccepted() = 0;

    /// Brings the accepted settings back and notifies what changed. Open transactions are rolled
    /// back first.
    virtual void RevertToAccepted() = 0;

    /// Delivers each such event to the observer (as a bundle holding the EventNotification) until
    /// it unregisters with the same three arguments.
    virtual void RegisterForEvent(IObserver& observer, EventId event, unsigned int kind) = 0;
    virtual void UnregisterForEvent(IObserver& observer, EventId event, unsigned int kind) = 0;

    /// Where molecules add constraints of their own; belongs to the model.
    virtual IConstraintsIntegrator& GetConstraintsIntegrator() = 0;

    /// Why the feature (or, when `option` is not "no value", that option of it) is disabled,
    /// cleared, hidden, limited or in conflict: one entry for each constraint at work, in the order
    /// in which the state tells them. Empty for a feature that is free or does not exist. Takes
    /// longer than asking for the state: for when somebody wants to know.
    virtual std::vector<o7::StateReason> GetStateReasons(const FeatureIdWithContext& feature,
                                                         const ValueId& option) = 0;

    /// The features that are in conflict now, for going from one to the next; sorted as they stand
    /// in the product.
    virtual std::vector<FeatureIdWithContext> GetFeaturesInConflict() = 0;

    /// What would become of writing this value (monostate: unspecified), although a constraint may
    /// forbid it: the conflicts it would bring and the ways to settle them.
    virtual o7::ChangeProposal ProposeChange(const FeatureIdWithContext& feature,
                                             const o7::FeatureValue& value) = 0;

    /// The complete list of what an alternative of a proposal changes.
    virtual std::vector<o7::Consequence> PreviewAlternative(const o7::Alternative& alternative) = 0;

    /// Writes an alternative of a proposal as one transaction. False, and nothing changed, when a
    /// feature does not exist any more or does not take its value.
    virtual bool ApplyAlternative(const o7::Alternative& alternative) = 0;

    /// How lengths stand in sentences from now on; whoever shows some already has to ask again.
    virtual void SetLengthFormat(const o7::LengthFormat&) {}

    FeatureServices(const FeatureServices&) = delete;
    FeatureServices& operator=(const FeatureServices&) = delete;

protected:
    FeatureServices() = default;
};
