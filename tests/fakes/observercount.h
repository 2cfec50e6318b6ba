#pragma once

#include "featureservices.h"

namespace o7::test {

/// A data model that hands everything on to another one and counts who is registered with it, and
/// the transactions that were opened.
class ObserverCount : public FeatureServices
{
public:
    explicit ObserverCount(FeatureServices& model) : m_model(model) {}

    int registered = 0; ///< less those that have unregistered
    int transactions = 0;

    void RegisterObserver(IObserver& observer, SettingsInstanceId instance,
                          const FeatureIdWithContext& feature, unsigned int kind) override
    {
        ++registered;
        m_model.RegisterObserver(observer, instance, feature, kind);
    }
    void UnregisterObserver(IObserver& observer, SettingsInstanceId instance,
                            const FeatureIdWithContext& feature, unsigned int kind) override
    {
        --registered;
        m_model.UnregisterObserver(observer, instance, feature, kind);
    }
    void RegisterForEvent(IObserver& observer, EventId event, unsigned int kind) override
    {
        ++registered;
        m_model.RegisterForEvent(observer, event, kind);
    }
    void UnregisterForEvent(IObserver& observer, EventId event, unsigned int kind) override
    {
        --registered;
        m_model.UnregisterForEvent(observer, event, kind);
    }
    std::unique_ptr<TransactionRef> OpenTransaction(const CXString& purpose) override
    {
        ++transactions;
        return m_model.OpenTransaction(purpose);
    }

    // clang-format off
    bool TestFeature(const FeatureIdWithContext& feature) override { return m_model.TestFeature(feature); }
    ListOfFeaturesRef GetListOfFeaturesFor(const FeatureIdWithContext& context) override { return m_model.GetListOfFeaturesFor(context); }
    std::unique_ptr<FeatureRef> GetFeatureRef(const FeatureIdWithContext& feature) override { return m_model.GetFeatureRef(feature); }
    OptionFeatureRef GetOptionFeatureRef(const FeatureIdWithContext& feature) override { return m_model.GetOptionFeatureRef(feature); }
    void SettleBeforeDisplay() override { m_model.SettleBeforeDisplay(); }
    ListOfFeaturesRef GetFullListOfFeatures() override { return m_model.GetFullListOfFeatures(); }
    ListOfFeaturesRef GetListOfFeaturesByGroup(DataModelIds::tagFeatureEnum group) override { return m_model.GetListOfFeaturesByGroup(group); }
    INotificationSink& GetNotificationSink() override { return m_model.GetNotificationSink(); }
    bool IsModified() const override { return m_model.IsModified(); }
    void CommitAccepted() override { m_model.CommitAccepted(); }
    void RevertToAccepted() override { m_model.RevertToAccepted(); }
    IConstraintsIntegrator& GetConstraintsIntegrator() override { return m_model.GetConstraintsIntegrator(); }
    std::vector<o7::StateReason> GetStateReasons(const FeatureIdWithContext& feature, const ValueId& option) override { return m_model.GetStateReasons(feature, option); }
    std::vector<FeatureIdWithContext> GetFeaturesInConflict() override { return m_model.GetFeaturesInConflict(); }
    o7::ChangeProposal ProposeChange(const FeatureIdWithContext& feature, const o7::FeatureValue& value) override { return m_model.ProposeChange(feature, value); }
    std::vector<o7::Consequence> PreviewAlternative(const o7::Alternative& alternative) override { return m_model.PreviewAlternative(alternative); }
    bool ApplyAlternative(const o7::Alternative& alternative) override { return m_model.ApplyAlternative(alternative); }
    // clang-format on

private:
    FeatureServices& m_model;
};

} // namespace o7::test
