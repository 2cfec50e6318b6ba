#pragma once

#include "changelog.h"
#include "constraintengine.h"
#include "counted.h"
#include "idatamodel.h"
#include "notifier.h"
#include "settingsroom.h"
#include "settingswriter.h"
#include "stateinterpreter.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace o7 {

/// The in-memory data model: ties the features, the constraints, the transactions and the
/// observers together. Every change of a feature goes through here.
class DataModel final : public IDataModel, private INotificationSink, private IConstraintsIntegrator
{
public:
    DataModel(std::shared_ptr<const ProductDescription> product, IStringSource& strings);
    ~DataModel() override;

    // FeatureServices
    void RegisterObserver(IObserver& observer, SettingsInstanceId instance,
                          const FeatureIdWithContext& feature, unsigned int kind) override;
    void UnregisterObserver(IObserver& observer, SettingsInstanceId instance,
                            const FeatureIdWithContext& feature, unsigned int kind) override;
    bool TestFeature(const FeatureIdWithContext& feature) override;
    ListOfFeaturesRef GetListOfFeaturesFor(const FeatureIdWithContext& context) override;
    std::unique_ptr<FeatureRef> GetFeatureRef(const FeatureIdWithContext& feature) override;
    OptionFeatureRef GetOptionFeatureRef(const FeatureIdWithContext& feature) override;
    std::unique_ptr<TransactionRef> OpenTransaction(const CXString& purpose) override;
    void SettleBeforeDisplay() override;
    ListOfFeaturesRef GetFullListOfFeatures() override;
    ListOfFeaturesRef GetListOfFeaturesByGroup(FeatureEnum group) override;
    INotificationSink& GetNotificationSink() override { return *this; }
    bool IsModified() const override;
    void CommitAccepted() override;
    void RevertToAccepted() override;
    void RegisterForEvent(IObserver& observer, EventId event, unsigned int kind) override;
    void UnregisterForEvent(IObserver& observer, EventId event, unsigned int kind) override;
    IConstraintsIntegrator& GetConstraintsIntegrator() override { return *this; }
    std::vector<StateReason> GetStateReasons(const FeatureIdWithContext& feature,
                                             const ValueId& option) override;
    std::vector<FeatureIdWithContext> GetFeaturesInConflict() override;
    ChangeProposal ProposeChange(const FeatureIdWithContext& feature,
                                 const FeatureValue& value) override;
    std::vector<Consequence> PreviewAlternative(const Alternative& alternative) override;
    bool ApplyAlternative(const Alternative& alternative) override;
    void SetLengthFormat(const LengthFormat& format) override
    {
        m_interpreter.SetLengthFormat(format);
    }

    // IDataModel
    bool SaveJobTicket(const std::filesystem::path& file, std::string& message) override;
    JobTicketResult LoadJobTicket(const std::filesystem::path& file) override;
    bool ExportSettings(std::vector<std::uint8_t>& block, std::size_t limit,
                        SettingsScope scope) const override;
    bool ImportSettings(const std::uint8_t* bytes, std::size_t size, SettingsScope scope) override;
    std::uint64_t GetEvaluationCount() const override { return m_engine.Evaluations(); }
    void LockSettings(unsigned reasonStringNumber) override
    {
        m_interpreter.Lock(reasonStringNumber);
    }

    // For the nodes and the transactions.
    FeatureNode* FindNode(const FeatureIdWithContext& feature) const;
    const ConstraintEngine& Engine() const { return m_engine; }
    StateInterpreter& Interpreter() { return m_interpreter; }
    std::unique_ptr<CapabilitiesNode> Capabilities(const FeatureNode& feature);
    bool SetValue(FeatureNode& feature, const FeatureValue& value);
    bool SetSpecified(FeatureNode& feature, bool specified);
    std::shared_ptr<FeatureNode> CreateItem(FeatureNode& list);
    bool DeleteItems(FeatureNode& list, const std::vector<std::size_t>& indices);
    bool CopyFrom(FeatureNode& feature, const IFeatureNode& source);
    bool RestoreToDefault(FeatureNode& feature);
    bool IsOpen(std::uint64_t transaction) const { return m_log.IsOpen(transaction); }
    bool CloseTransaction(std::uint64_t transaction, bool commit);

private:
    void SendNotification(const INotification& notification) override;
    bool AddConstraint(const ConstraintMkII& constraint) override;
    bool AddConstraint(const std::vector<Condition>& when, const Condition& mustNotHold,
                       const ConstraintMkIIOptions& options) override;

    /// Runs a change; the outermost one delivers what it changed, unless a transaction is open.
    template <typename Action> bool Operate(const Action& action)
    {
        bool done = false;
        {
            const Counted counted(m_operations);
            done = action();
        }
        if (m_operations == 0)
            DeliverPending();
        return done;
    }
    void RollBackInnermost();
    std::vector<std::vector<SettingChange>> RemediesOf(const Constraint& constraint);
    /// The features of an alternative with the values they get; empty unless all take them.
    std::vector<std::pair<FeatureNode*, FeatureValue>> Resolved(const Alternative& alternative);
    void Deliver(std::vector<Change> changes);
    void DeliverPending();
    void HandleEvent(const EventNotification& event);
    void Accept(const EventNotification& event);
    void Cancel(const EventNotification& event);
    SettingsSnapshot DefaultsOf() const { return ResettableDefaults(*m_root); }
    /// What keeps a list from getting a further item; disabled, with the reason, when anything
    /// does.
    InterpretedState NewItemState(const FeatureNode& list);
    /// Makes a complete set of settings the current and the accepted one.
    void Adopt(const SettingsSnapshot& settings);

    std::shared_ptr<const ProductDescription> m_product;
    FeatureDescription m_rootDescription;
    ChangeLog m_log;
    ConstraintEngine m_engine;
    SettingsWriter m_writer;
    Notifier m_notifier;
    StateInterpreter m_interpreter;
    std::shared_ptr<FeatureNode> m_root;
    std::unique_ptr<SettingsRoom> m_room;
    SettingsSnapshot m_accepted;
    /// What the job ticket held besides our settings, as JSON text.
    std::string m_foreignTicketEntries;
    /// A job ticket that is there and could not be read: not to be overwritten.
    std::filesystem::path m_unreadTicket;
    int m_operations = 0;
    int m_deliveryDepth = 0;
    int m_deliveryRounds = 0;
    /// Lets transactions that outlive the model notice.
    std::shared_ptr<DataModel*> m_self;
};

} // namespace o7
