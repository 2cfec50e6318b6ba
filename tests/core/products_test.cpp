#include "bruteforce.h"
#include "testproduct.h"

#include "featurechangenotification.h"
#include "notificationbundle.h"
#include "packageanalysis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>

namespace {

using o7::FeatureKind;

std::vector<std::string> ProductNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(O7_PRODUCTS_DIR)) {
        if (std::filesystem::exists(entry.path() / "package.json"))
            names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Every product that is there, in a model of its own.
class Products : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override
    {
        const auto file = std::filesystem::path(O7_PRODUCTS_DIR) / GetParam() / "package.json";
        std::ifstream stream(file, std::ios::binary);
        json = nlohmann::json::parse(stream);
        std::vector<o7::PackageError> errors;
        package = o7::LoadProductPackage(file, errors);
        ASSERT_TRUE(package) << errors.front().ToString();
        model = o7::CreateDataModel(*package, strings);
        all = model->GetFullListOfFeatures();
        CollectLeaves(*all.GetNode());
    }

    void CollectLeaves(const IFeatureNode& list)
    {
        for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
            const auto child = list.GetChild(i);
            const bool isList = child->GetKind() == FeatureKind::ListOfFeatures ||
                                child->GetKind() == FeatureKind::ListOfValues;
            (child->GetKind() == FeatureKind::ListOfValues ? lists
             : isList                                      ? groups
                                                           : leaves)
                .push_back(child);
            if (isList)
                CollectLeaves(*child);
        }
    }
    void CollectAgain()
    {
        leaves.clear();
        lists.clear();
        groups.clear();
        CollectLeaves(*all.GetNode());
    }

    test::Strings strings;
    nlohmann::json json;
    std::unique_ptr<o7::ProductPackage> package;
    std::unique_ptr<IDataModel> model;
    ListOfFeaturesRef all;
    std::vector<IFeatureNode::Ptr> leaves;
    std::vector<IFeatureNode::Ptr> lists;
    std::vector<IFeatureNode::Ptr> groups;
};

/// The values worth trying: every option, both booleans, the ends of ranges.
std::vector<o7::FeatureValue> ValuesOf(const IFeatureNode& feature)
{
    std::vector<o7::FeatureValue> values;
    const auto capabilities = feature.GetCapabilities();
    if (const auto* options = dynamic_cast<const OptionCapability*>(capabilities.get())) {
        for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i)
            values.emplace_back(options->GetOptionWithState(i).GetValueId());
    } else if (const auto* range = dynamic_cast<const RangeCapability*>(capabilities.get())) {
        const RangeOfInteger ends = range->GetLargestAndSmallestRangeValues();
        for (const int value :
             {ends.GetLowerBound(), ends.GetLowerBound() + 1,
              (ends.GetLowerBound() + ends.GetUpperBound()) / 2, ends.GetUpperBound()})
            values.emplace_back(value);
    } else if (const auto* lengths =
                   dynamic_cast<const RangeOfDimensionCapability*>(capabilities.get())) {
        Dimension low;
        Dimension high;
        if (lengths->GetRangeValues(low, high)) {
            const auto middle = (low.GetCount() + high.GetCount()) / 2;
            values = {low, Dimension::FromCount(middle, low.GetUnits()), high};
        }
    } else if (feature.GetKind() == FeatureKind::Boolean) {
        values = {false, true};
    } else if (feature.GetKind() == FeatureKind::String) {
        values = {CXString(), CXString(L"1234")};
    }
    return values;
}

class Dice
{
public:
    /// The same throws on every platform.
    std::size_t operator()(std::size_t sides) { return m_engine() % sides; }

private:
    std::mt19937 m_engine{20261121};
};

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

std::string NameOf(const testing::TestParamInfo<std::string>& product)
{
    std::string name = product.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, Products, testing::ValuesIn(ProductNames()), NameOf);
INSTANTIATE_TEST_SUITE_P(All, Reasons, testing::ValuesIn(ProductNames()), NameOf);

} // namespace
