// Random walks through every product, as a person's whole visit: changes, popups that are confirmed
// or not, OK, Cancel, and what was accepted read back elsewhere.
#include "bruteforce.h"
#include "everyproduct.h"

#include "eventnotification.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <set>

namespace {

using o7::FeatureKind;

/// A setting's value, and nothing for one without.
using Value = std::optional<o7::FeatureValue>;

struct Setting
{
    FeatureIdWithContext feature;
    Value value;

    bool operator==(const Setting&) const = default;
};

class Walks : public test::EveryProduct
{
protected:
#ifdef __SANITIZE_ADDRESS__ // some thirty times slower
    static constexpr int kWalks = 100;
#else
    static constexpr int kWalks = 5000;
#endif
    /// Walks whose states are worked out from scratch, and that go through a file.
    static constexpr int kThorough = 100;

    void SetUp() override
    {
        EveryProduct::SetUp();
        reader = o7::CreateDataModel(*package, strings);
        const auto settings = [](const IFeatureNode& leaf) {
            const auto capabilities = leaf.GetCapabilities();
            return capabilities->IsReadOnly() || capabilities->IsStateOnlyFeature();
        };
        std::erase_if(leaves, [&](const auto& leaf) { return settings(*leaf); });
        // Secrets are kept nowhere but in the document.
        for (const nlohmann::json& feature : json["features"]) {
            const auto flags = feature.value("flags", nlohmann::json::array());
            if (std::find(flags.begin(), flags.end(), "secret") != flags.end())
                secrets.insert(feature["name"]);
        }
        accepted = Settings(*model);
    }

    /// What counts as a setting of the job: all that a job ticket saves and loads.
    void Add(const IFeatureNode& list, std::vector<Setting>& settings)
    {
        auto [known, fresh] = travels.try_emplace(list.GetId().GetFeatureEnum());
        auto& kept = known->second;
        if (fresh && list.GetKind() == FeatureKind::ListOfFeatures) {
            const auto base = list.GetCapabilities();
            const auto& travel = dynamic_cast<const ListOfFeaturesCapability&>(*base);
            for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
                const FeatureId& id = list.GetChild(i)->GetId().GetFeatureId();
                kept.push_back(travel.IsSavedInOjtf(id) && travel.IsLoadedFromOjtf(id) &&
                               !IsSecret(id));
            }
        }
        for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
            if (i < kept.size() && !kept[i])
                continue;
            const auto child = list.GetChild(i);
            settings.push_back({child->GetId(), {}});
            o7::FeatureValue value;
            if (child->IsSpecified() && child->GetValue(value))
                settings.back().value = value;
            if (child->GetNumChildren() > 0)
                Add(*child, settings);
        }
    }
    bool IsSecret(const FeatureId& feature) const
    {
        return secrets.count(feature.GetName().ToUtf8()) != 0;
    }
    std::vector<Setting> Settings(IDataModel& of)
    {
        std::vector<Setting> settings;
        Add(*of.GetFullListOfFeatures().GetNode(), settings);
        return settings;
    }
    /// Items have keys of their own in every model.
    static bool SameValues(const std::vector<Setting>& a, const std::vector<Setting>& b)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](const Setting& x, const Setting& y) { return x.value == y.value; });
    }
    static std::string Difference(const std::vector<Setting>& a, const std::vector<Setting>& b)
    {
        const auto [x, y] =
            std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                          [](const Setting& p, const Setting& q) { return p.value == q.value; });
        return x == a.end() ? "more settings" : x->feature.Dump(false).ToUtf8();
    }

    void Change()
    {
        const std::size_t kind = dice(20);
        if (kind == 0 && !lists.empty())
            lists[dice(lists.size())]->CreateItem();
        else if (kind == 1 && !lists.empty())
            lists[dice(lists.size())]->DeleteItems({0});
        else if (kind == 2)
            leaves[dice(leaves.size())]->RestoreToDefaultValue();
        else if (kind == 3)
            leaves[dice(leaves.size())]->SetIsSpecified(dice(2) == 0);
        else
            SetSome(*leaves[dice(leaves.size())]);
        if (kind == 0 && !lists.empty())
            SetSomethingInItems();
    }
    void SetSome(IFeatureNode& leaf)
    {
        auto [known, fresh] = valuesOf.try_emplace(leaf.GetId().Dump(true).ToUtf8());
        auto& values = known->second;
        if (fresh)
            values = test::ValuesOf(leaf);
        if (!values.empty())
            leaf.SetValue(values[dice(values.size())]);
    }
    void SetSomethingInItems()
    {
        const auto& list = lists[dice(lists.size())];
        if (list->GetNumChildren() == 0)
            return;
        const auto item = list->GetChild(dice(list->GetNumChildren()));
        if (item->GetNumChildren() > 0)
            SetSome(*item->GetChild(dice(item->GetNumChildren())));
    }

    /// Changes inside a popup; confirmed or taken back as a whole.
    void Popup(int depth)
    {
        const auto before = Settings(*model);
        const auto transaction = model->OpenTransaction();
        for (std::size_t i = dice(3) + 1; i > 0; --i)
            Change();
        if (depth < 2 && dice(3) == 0)
            Popup(depth + 1);
        const bool confirmed = dice(2) == 0;
        transaction->Close(confirmed);
        if (!confirmed) {
            EXPECT_EQ(Settings(*model) == before, true)
                << Difference(Settings(*model), before) << " was not taken back";
        }
    }

    void Send(DataModelIds::EventEnum event) const
    {
        model->GetNotificationSink().SendNotification(EventNotification(EventId(event)));
    }
    void Accept(bool thorough)
    {
        Send(dice(2) == 0 ? DataModelIds::kEventOk : DataModelIds::kEventApply);
        const auto result =
            model->GetOptionFeatureRef(DataModelIds::kFeatureApplyResult).GetValue();
        if (result.GetValueEnum() == DataModelIds::kValueApplyRejected)
            return; // and Cancel shows that nothing was accepted
        EXPECT_FALSE(model->IsModified());
        accepted = Settings(*model);
        ReadBack(thorough);
        ChangeBoth();
    }
    void ReadBack(bool throughFile)
    {
        if (throughFile) {
            const auto file = std::filesystem::temp_directory_path() /
                              ("o7-walks-" + package->GetProductInfo().uniqueId.ToUtf8());
            std::string message;
            EXPECT_TRUE(model->SaveJobTicket(file, message)) << message;
            EXPECT_EQ(reader->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
            std::filesystem::remove(file);
        } else {
            std::vector<std::uint8_t> block;
            EXPECT_TRUE(model->ExportSettings(block, kNoLimit));
            EXPECT_TRUE(reader->ImportSettings(block.data(), block.size()));
        }
        const auto read = Settings(*reader);
        EXPECT_TRUE(SameValues(read, accepted))
            << Difference(read, accepted) << " did not come back";
        EXPECT_FALSE(reader->IsModified());
    }
    void Cancel()
    {
        Send(DataModelIds::kEventCancelQueried);
        EXPECT_FALSE(model->IsModified());
        const auto now = Settings(*model);
        EXPECT_TRUE(now == accepted) << Difference(now, accepted) << " is not as it was accepted";
    }
    /// What follows another setting goes on doing so elsewhere, and what was chosen stays.
    void ChangeBoth()
    {
        const auto& leaf = leaves[dice(leaves.size())];
        SetSome(*leaf);
        o7::FeatureValue value;
        const auto twin = reader->GetFeatureRef(leaf->GetId())->GetNode();
        if (leaf->IsSpecified() && leaf->GetValue(value))
            twin->SetValue(value);
        else
            twin->SetIsSpecified(false);
        const auto here = Settings(*model);
        const auto there = Settings(*reader);
        EXPECT_TRUE(SameValues(here, there))
            << Difference(here, there) << " after " << leaf->GetId().Dump(false).ToUtf8();
    }

    static constexpr std::size_t kNoLimit = 1U << 30U;
    std::unique_ptr<IDataModel> reader;
    std::vector<Setting> accepted;
    std::set<std::string> secrets;
    std::map<int, std::vector<bool>> travels; ///< By the number of the list, for each member.
    std::map<std::string, std::vector<o7::FeatureValue>> valuesOf;
    test::Dice dice;
};

TEST_P(Walks, LoseNoValueAndShowNoUntrueState)
{
    test::BruteForce bruteForce(json, all);
    for (int walk = 0; walk < kWalks; ++walk) {
        SCOPED_TRACE("walk " + std::to_string(walk));
        const bool thorough = walk % kThorough == 0;
        for (std::size_t step = dice(6) + 2; step > 0; --step)
            dice(4) == 0 ? Popup(0) : Change();
        if (thorough) {
            ASSERT_EQ(bruteForce.Differences(), std::vector<std::string>());
        }
        if (dice(2) == 0)
            Accept(thorough);
        Cancel();
        if (thorough) {
            ASSERT_EQ(bruteForce.Differences(), std::vector<std::string>());
        }
        if (HasFailure())
            return;
        // Not for ever the settings that piled up.
        if (walk % 50 == 49) {
            all.RestoreToDefaultValue();
            Send(DataModelIds::kEventOk);
            accepted = Settings(*model);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, Walks, testing::ValuesIn(test::ProductNames()), test::NameOfProduct);

} // namespace
