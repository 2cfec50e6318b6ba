#include "bruteforce.h"
#include "everyproduct.h"

#include "featurechangenotification.h"
#include "notificationbundle.h"
#include "packageanalysis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace {

using test::Dice;
using test::ValuesOf;
using Products = test::EveryProduct;

TEST_P(Products, BruteForceAgreesAfterTenThousandRandomChanges)
{
    constexpr int kChanges = 10000;
    constexpr int kBetween = 400;
    test::BruteForce bruteForce(json, all);
    Dice dice;
    std::unique_ptr<TransactionRef> transaction;
    std::map<IFeatureNode::Ptr, std::vector<o7::FeatureValue>> valuesOf;
    for (int change = 0; change < kChanges; ++change) {
        const std::size_t kind = dice(100);
        if (kind == 0 && !lists.empty()) {
            lists[dice(lists.size())]->CreateItem();
            CollectAgain();
        } else if (kind == 1 && !lists.empty()) {
            lists[dice(lists.size())]->DeleteItems({0});
            CollectAgain();
        } else if (kind == 2) {
            leaves[dice(leaves.size())]->RestoreToDefaultValue();
        } else if (kind == 3) {
            leaves[dice(leaves.size())]->SetIsSpecified(dice(2) == 0);
        } else if (kind == 4 && !transaction) {
            transaction = model->OpenTransaction();
        } else if (kind == 5 && transaction) {
            transaction->Close(dice(2) == 0);
            transaction.reset();
            CollectAgain();
        } else {
            const auto& leaf = leaves[dice(leaves.size())];
            auto [known, fresh] = valuesOf.try_emplace(leaf);
            const auto& values = fresh ? known->second = ValuesOf(*leaf) : known->second;
            if (!values.empty())
                leaf->SetValue(values[dice(values.size())]);
        }
        if (change % kBetween == 0 || change == kChanges - 1) {
            ASSERT_EQ(bruteForce.Differences(), std::vector<std::string>()) << "after " << change;
        }
    }
}

TEST_P(Products, HoldNoRuleThatCannotBeMeant)
{
    for (const o7::PackageFinding& finding : o7::AnalyseProductPackage(*package))
        ADD_FAILURE() << finding.line << ": " << o7::NameOf(finding.kind) << ": "
                      << finding.message;
}

/// Collects the features whose state it is told of.
class StateWatch : public IObserver
{
public:
    void ProcessNotification(const INotification& notification, unsigned int) override
    {
        const auto& bundle = dynamic_cast<const NotificationBundle&>(notification);
        for (auto each = bundle.GetIterator(); each.MoreNotifications();) {
            const auto& change = dynamic_cast<const FeatureChangeNotification&>(each.GetNext());
            changed.push_back(change.GetSettingIdWithContext());
        }
    }

    std::vector<FeatureIdWithContext> changed;
};

class Reasons : public Products
{
protected:
    bool IsDevices(const FeatureIdWithContext& feature) const
    {
        const auto capabilities = model->GetFeatureRef(feature)->GetCapabilities();
        return capabilities->IsStateOnlyFeature() || capabilities->IsReadOnly();
    }

    /// Makes the changes of the first remedy as a person would, and looks whether the reason goes.
    void ExpectLifted(const FeatureIdWithContext& feature, const ValueId& option,
                      const o7::StateReason& reason)
    {
        const auto same = [&](const o7::StateReason& other) { return other.id == reason.id; };
        const auto transaction = model->OpenTransaction();
        for (const o7::SettingChange& change : reason.remedies.front()) {
            const auto node = model->GetFeatureRef(change.feature)->GetNode();
            EXPECT_TRUE(change.after.index() == 0 ? node->SetIsSpecified(false)
                                                  : node->SetValue(change.after))
                << change.feature.Dump(false).ToUtf8();
        }
        const auto after = model->GetStateReasons(feature, option);
        EXPECT_TRUE(std::none_of(after.begin(), after.end(), same)) << "still there";
    }

    void CheckReasons(const FeatureIdWithContext& feature, const ValueId& option, bool limited)
    {
        SCOPED_TRACE(feature.Dump(false).ToUtf8() + " " + option.GetValueName().ToUtf8());
        const auto reasons = model->GetStateReasons(feature, option);
        EXPECT_EQ(limited && reasons.empty(), false) << "no reason";
        for (const o7::StateReason& reason : reasons) {
            SCOPED_TRACE(reason.id);
            EXPECT_FALSE(reason.sentence.IsBlank());
            EXPECT_FALSE(reason.causes.empty());
            ++checked;
            if (!reason.remedies.empty())
                ExpectLifted(feature, option, reason);
            else
                EXPECT_TRUE(std::all_of(reason.causes.begin(), reason.causes.end(),
                                        [&](const auto& cause) { return IsDevices(cause); }))
                    << "nothing lifts it";
        }
    }

    void CheckStates(const FeatureIdWithContext& feature)
    {
        const auto isLimited = [](const InterpretedState& state) {
            EXPECT_EQ(state.GetReason().IsEmpty(),
                      !state.IsDisabled() && !state.IsCleared() && !state.IsHidden());
            return !state.GetReason().IsEmpty();
        };
        const auto capabilities = model->GetFeatureRef(feature)->GetCapabilities();
        const InterpretedState& state = capabilities->GetInterpretedState();
        if (isLimited(state) || state.HasCbrBtnMsg())
            CheckReasons(feature, ValueId(), isLimited(state));
        if (const auto* options = dynamic_cast<const OptionCapability*>(capabilities.get())) {
            for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
                const OptionWithState& option = options->GetOptionWithState(i);
                if (isLimited(option.GetInterpretedState()))
                    CheckReasons(feature, option.GetValueId(), true);
            }
        }
    }

    int checked = 0;
};

TEST_P(Reasons, OfEveryLimitNameWhatLiftsItAfterEveryOtherChange)
{
    for (const auto& leaf : leaves)
        CheckStates(leaf->GetId());
    StateWatch watch;
    const SettingsInstanceId states(DataModelIds::kSettingsConstraintState);
    const FeatureIdWithContext everything;
    model->RegisterObserver(watch, states, everything, DataModelIds::kObserverFeature);
    int changes = 0;
    for (const auto& leaf : leaves) {
        for (const auto& value : ValuesOf(*leaf)) {
            SCOPED_TRACE(leaf->GetId().Dump(false).ToUtf8() + " as changed");
            watch.changed.clear();
            if (!leaf->SetValue(value) || watch.changed.empty())
                continue;
            ++changes;
            // Those whose state this change touches; the others are as they were.
            for (const auto& feature : std::vector<FeatureIdWithContext>(watch.changed))
                CheckStates(feature);
            model->RevertToAccepted();
        }
        model->RevertToAccepted();
    }
    model->UnregisterObserver(watch, states, everything, DataModelIds::kObserverFeature);
    RecordProperty("changes", changes);
    RecordProperty("reasons", checked);
    EXPECT_GT(changes, 0);
    EXPECT_GT(checked, changes / 2);
}

INSTANTIATE_TEST_SUITE_P(All, Products, testing::ValuesIn(test::ProductNames()),
                         test::NameOfProduct);
INSTANTIATE_TEST_SUITE_P(All, Reasons, testing::ValuesIn(test::ProductNames()),
                         test::NameOfProduct);

} // namespace
