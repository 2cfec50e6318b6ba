#include "testproduct.h"

#include "eventnotification.h"

#include <gtest/gtest.h>

#include <iterator>
#include <stdexcept>
#include <utility>

namespace {

using Bundles = std::vector<std::string>;
using test::Product;
using test::Recorder;

constexpr unsigned kKind = DataModelIds::kObserverFeature;

class Notifications : public testing::Test
{
protected:
    void Watch(Recorder& recorder, DataModelIds::tagFeatureEnum feature,
               DataModelIds::SettingsEnum instance = DataModelIds::kSettingsCurrent)
    {
        product.model->RegisterObserver(recorder, SettingsInstanceId(instance), feature, kKind);
    }
    void Unwatch(Recorder& recorder, DataModelIds::tagFeatureEnum feature,
                 DataModelIds::SettingsEnum instance = DataModelIds::kSettingsCurrent)
    {
        product.model->UnregisterObserver(recorder, SettingsInstanceId(instance), feature, kKind);
    }

    Product product;
};

TEST_F(Notifications, TheSettingsInstanceSelectsValuesAndStates)
{
    Recorder both;
    Recorder values;
    Recorder states;
    Watch(both, test::kSides);
    Watch(values, test::kSides, DataModelIds::kSettingsValue);
    Watch(states, test::kSides, DataModelIds::kSettingsConstraintState);
    product.Set(test::kSides, test::kTwoSided);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(both.bundles, (Bundles{"odrv-sides value", "odrv-sides state"}));
    EXPECT_EQ(values.bundles, Bundles{"odrv-sides value"});
    EXPECT_EQ(states.bundles, Bundles{"odrv-sides state"});
    EXPECT_EQ(both.lastKind, kKind);
    // The value leaves what is disabled: the conflict goes, so both sides change.
    product.Set(test::kSides, test::kOneSided);
    EXPECT_EQ(both.bundles.back(), "odrv-sides value, odrv-sides state");
    product.Set(test::kSides, test::kOneSided);
    EXPECT_EQ(both.bundles.size(), 3U) << "no change, no notification";
}

TEST_F(Notifications, UnregisteringIsTheExactInverse)
{
    Recorder recorder;
    Watch(recorder, test::kMedia);
    Watch(recorder, test::kMedia);
    Unwatch(recorder, test::kSides);
    Unwatch(recorder, test::kMedia, DataModelIds::kSettingsValue);
    product.model->UnregisterObserver(recorder, SettingsInstanceId(DataModelIds::kSettingsCurrent),
                                      test::kMedia, kKind + 1);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(recorder.bundles.size(), 1U) << "registered twice, delivered once";
    Unwatch(recorder, test::kMedia);
    product.Set(test::kMedia, test::kPlain);
    EXPECT_EQ(recorder.bundles.size(), 2U) << "still registered once";
    Unwatch(recorder, test::kMedia);
    Unwatch(recorder, test::kMedia);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(recorder.bundles.size(), 2U);
    Watch(recorder, test::kAbsent);
    Unwatch(recorder, test::kAbsent);
}

TEST_F(Notifications, ATransactionDeliversOneBundleAtItsEnd)
{
    Recorder recorder;
    Watch(recorder, test::kMedia);
    Watch(recorder, test::kCopies);
    Watch(recorder, test::kSides);
    auto transaction = product.model->OpenTransaction();
    product.Set(test::kMedia, test::kFilm);
    product.All().GetIntegerFeature(test::kCopies).SetValue(5);
    product.All().GetIntegerFeature(test::kCopies).SetValue(6);
    EXPECT_TRUE(recorder.bundles.empty());
    EXPECT_TRUE(transaction->IsOpen());
    EXPECT_TRUE(transaction->Close(true));
    EXPECT_FALSE(transaction->Close(true)) << "closed already";
    EXPECT_EQ(recorder.bundles, Bundles{"odrv-media value, odrv-sides state, odrv-copies value"});
}

TEST_F(Notifications, TransactionsNest)
{
    Recorder recorder;
    Watch(recorder, test::kCopies);
    auto copies = product.All().GetIntegerFeature(test::kCopies);
    {
        auto outer = product.model->OpenTransaction();
        copies.SetValue(2);
        auto inner = product.model->OpenTransaction();
        copies.SetValue(3);
        inner->Close(true);
        EXPECT_EQ(recorder.bundles.size(), 1U) << "the inner level is told at once";
        auto second = product.model->OpenTransaction();
        copies.SetValue(4);
        second.reset();
        EXPECT_EQ(product.Number(test::kCopies), 3) << "destroyed without close: rolled back";
        EXPECT_EQ(recorder.bundles.size(), 2U);
    }
    EXPECT_EQ(product.Number(test::kCopies), 1) << "the committed inner level goes back too";
    EXPECT_EQ(recorder.bundles.size(), 3U);
}

TEST_F(Notifications, AnOuterLevelAnswersForTheInnerOnes)
{
    Recorder recorder;
    Watch(recorder, test::kCopies);
    Watch(recorder, test::kMedia);
    auto copies = product.All().GetIntegerFeature(test::kCopies);
    {
        // As when a popup's own list was confirmed, and then the popup is cancelled.
        const auto outer = product.model->OpenTransaction();
        auto inner = product.model->OpenTransaction();
        copies.SetValue(3);
        inner->Close(true);
    }
    EXPECT_EQ(product.Number(test::kCopies), 1);
    EXPECT_EQ(recorder.bundles, (Bundles{"odrv-copies value", "odrv-copies value"}));

    recorder.bundles.clear();
    auto outer = product.model->OpenTransaction();
    auto inner = product.model->OpenTransaction();
    copies.SetValue(4);
    outer->Close(true);
    EXPECT_EQ(recorder.bundles, Bundles{"odrv-copies value"}) << "what was open inside is told";
    EXPECT_FALSE(inner->IsOpen());

    recorder.bundles.clear();
    outer = product.model->OpenTransaction();
    copies.SetValue(5);
    inner = product.model->OpenTransaction();
    copies.SetValue(6);
    inner->Close(true);
    product.Set(test::kMedia, test::kFilm);
    copies.SetValue(7);
    outer->Close(true);
    EXPECT_EQ(recorder.bundles,
              (Bundles{"odrv-copies value", "odrv-copies value, odrv-media value"}))
        << "once in each level";
}

TEST_F(Notifications, CancelEndsWhatIsOpen)
{
    product.Set(test::kMedia, test::kFilm);
    product.model->CommitAccepted();
    auto outer = product.model->OpenTransaction();
    product.Set(test::kMedia, test::kPlain);
    auto inner = product.model->OpenTransaction();
    product.Set(test::kSides, test::kOneSided);
    product.All().GetIntegerFeature(test::kCopies).SetValue(9);
    product.model->RevertToAccepted();
    EXPECT_FALSE(outer->IsOpen());
    EXPECT_FALSE(inner->Close(true));
    EXPECT_EQ(product.Get(test::kMedia), test::kFilm);
    EXPECT_EQ(product.Number(test::kCopies), 1);
    EXPECT_FALSE(product.model->IsModified());
}

TEST_F(Notifications, ClosingAnOuterLevelClosesTheInnerOnes)
{
    auto outer = product.model->OpenTransaction();
    auto inner = product.model->OpenTransaction();
    product.Set(test::kMedia, test::kFilm);
    EXPECT_TRUE(outer->Close(false));
    EXPECT_FALSE(inner->IsOpen());
    EXPECT_FALSE(inner->Close(true));
    EXPECT_EQ(product.Get(test::kMedia), test::kPlain);
    EXPECT_FALSE(product.State(test::kSides).HasInfoBtnMsg()) << "states are restored too";

    // A transaction may outlive its model.
    auto transaction = product.model->OpenTransaction();
    product.model.reset();
    EXPECT_FALSE(transaction->IsOpen());
    EXPECT_FALSE(transaction->Close(true));
}

TEST_F(Notifications, ObserversMayWriteWhileTheyAreTold)
{
    Recorder first;
    Recorder second;
    Watch(first, test::kMedia);
    Watch(second, test::kMedia);
    Watch(second, test::kStaple);
    first.reaction = [&] { product.Set(test::kStaple, test::kOneStaple); };
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(second.bundles, (Bundles{"odrv-staple value", "odrv-media value"}));
}

TEST_F(Notifications, ObserversMayGoWhileTheyAreTold)
{
    // Each of the first two takes itself and the third away and destroys both; nobody is called
    // after that, and one who comes new waits for the next change.
    auto doomed = std::make_unique<Recorder>();
    Recorder killer;
    Recorder newcomer;
    Watch(killer, test::kMedia);
    Watch(*doomed, test::kMedia);
    killer.reaction = [&] {
        if (!doomed)
            return;
        Unwatch(*doomed, test::kMedia);
        doomed.reset();
        Watch(newcomer, test::kMedia);
    };
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(doomed, nullptr);
    EXPECT_TRUE(newcomer.bundles.empty());

    auto selfish = std::make_unique<Recorder>();
    Watch(*selfish, test::kMedia);
    selfish->reaction = [&] {
        Unwatch(*selfish, test::kMedia);
        selfish.reset();
    };
    product.Set(test::kMedia, test::kPlain);
    EXPECT_EQ(selfish, nullptr);
    EXPECT_EQ(newcomer.bundles.size(), 1U);
}

TEST_F(Notifications, AnItemMayGoWhileItsObserversAreTold)
{
    auto pages = product.All().GetListOfValues(test::kSpecialPages);
    auto copies = pages.CreateListOfFeatures().GetIntegerFeature(test::kCopies);
    const FeatureIdWithContext id = copies.GetFeatureIdWithContextRef();
    const SettingsInstanceId all(DataModelIds::kSettingsCurrent);
    Recorder first;
    Recorder second;
    for (Recorder* recorder : {&first, &second})
        product.model->RegisterObserver(*recorder, all, id, kKind);
    first.reaction = [&] {
        copies = IntegerFeatureRef();
        pages.DeleteAllItems();
        pages.CreateListOfFeatures();
    };
    copies.SetValue(7);
    EXPECT_EQ(first.bundles, Bundles{"odrv-special-pages[0]/odrv-copies value"});
    EXPECT_EQ(second.bundles, first.bundles) << "it is told of what is no longer there";
    EXPECT_EQ(pages.GetNumItems(), 1U);
    for (Recorder* recorder : {&first, &second})
        product.model->UnregisterObserver(*recorder, all, id, kKind);
}

TEST_F(Notifications, ObserversOfOneFeatureMayComeAndGoWhileTheyAreTold)
{
    // Four on one feature: the first strikes out the second, brings a fifth, and changes the
    // feature again; the others hear of both changes, each once.
    Recorder recorders[5];
    for (int i = 0; i < 4; ++i)
        Watch(recorders[i], test::kMedia);
    recorders[0].reaction = [&] {
        if (recorders[0].bundles.size() > 1)
            return;
        Unwatch(recorders[1], test::kMedia);
        Watch(recorders[4], test::kMedia);
        product.Set(test::kMedia, test::kPlain);
    };
    product.Set(test::kMedia, test::kFilm);
    const std::size_t heard[] = {2, 0, 2, 2, 1};
    for (std::size_t i = 0; i < std::size(heard); ++i)
        EXPECT_EQ(recorders[i].bundles.size(), heard[i]) << i;
}

TEST_F(Notifications, ObserversThatAnswerEachOtherForEverAreCutOff)
{
    Recorder recorder;
    Watch(recorder, test::kCopies);
    auto copies = product.All().GetIntegerFeature(test::kCopies);
    recorder.reaction = [&] { copies.SetValue(product.Number(test::kCopies) == 1 ? 2 : 1); };
    copies.SetValue(2);
    recorder.reaction = nullptr;
    const std::size_t before = recorder.bundles.size();
    EXPECT_GT(before, 100U);
    copies.SetValue(50);
    EXPECT_EQ(recorder.bundles.size(), before + 1) << "everything works again afterwards";
}

TEST_F(Notifications, AThrowingObserverDoesNotSilenceTheOthers)
{
    Recorder thrower;
    Recorder other;
    Watch(thrower, test::kMedia);
    Watch(other, test::kMedia);
    thrower.reaction = [] { throw std::runtime_error("observer"); };
    EXPECT_THROW(product.Set(test::kMedia, test::kFilm), std::runtime_error);
    EXPECT_EQ(product.Get(test::kMedia), test::kFilm);
    EXPECT_EQ(other.bundles.size(), 1U);
    // A rollback by destruction must not throw.
    thrower.reaction = nullptr;
    auto transaction = product.model->OpenTransaction();
    product.Set(test::kMedia, test::kPlain);
    thrower.reaction = [] { throw std::runtime_error("observer"); };
    transaction.reset();
    EXPECT_EQ(product.Get(test::kMedia), test::kFilm);
}

TEST_F(Notifications, EventsReachThoseWhoAskedAndWhatTheyWriteOnOkIsAccepted)
{
    Recorder recorder;
    const EventId ok(DataModelIds::kEventOk);
    auto& sink = product.model->GetNotificationSink();
    product.model->RegisterForEvent(recorder, ok, DataModelIds::kObserverEvent);
    recorder.reaction = [&] { product.Set(test::kMedia, test::kFilm); };
    sink.SendNotification(EventNotification(ok));
    sink.SendNotification(EventNotification(EventId(DataModelIds::kEventTab21005)));
    EXPECT_EQ(recorder.bundles,
              Bundles{"event " + std::to_string(static_cast<int>(DataModelIds::kEventOk))});
    EXPECT_EQ(recorder.lastKind, DataModelIds::kObserverEvent);
    EXPECT_FALSE(product.model->IsModified());
    product.model->RevertToAccepted();
    EXPECT_EQ(product.Get(test::kMedia), test::kFilm);
    product.model->UnregisterForEvent(recorder, ok, DataModelIds::kObserverEvent);
    sink.SendNotification(EventNotification(ok));
    EXPECT_EQ(recorder.bundles.size(), 1U);
}

/// A product whose settings can be rejected at OK, and what is told of its acceptance.
class Acceptance : public testing::Test
{
protected:
    static constexpr auto kCopies = test::kCopies;

    Acceptance()
    {
        for (const auto& [observer, event] : Registrations())
            product.model->RegisterForEvent(*observer, EventId(event),
                                            DataModelIds::kObserverEvent);
        storing.reaction = [&] { stored.push_back(Stored()); };
    }
    ~Acceptance() override
    {
        for (const auto& [observer, event] : Registrations())
            product.model->UnregisterForEvent(*observer, EventId(event),
                                              DataModelIds::kObserverEvent);
    }

    std::vector<std::pair<Recorder*, DataModelIds::EventEnum>> Registrations()
    {
        return {{&told, DataModelIds::kEventOk},
                {&told, DataModelIds::kEventApply},
                {&storing, DataModelIds::kEventAccepted}};
    }
    void Send(DataModelIds::EventEnum event)
    {
        product.model->GetNotificationSink().SendNotification(EventNotification(EventId(event)));
    }
    bool SetCopies(int copies) { return product.All().GetIntegerFeature(kCopies).SetValue(copies); }
    /// The copies that somebody would read who gets what can be stored now.
    int Stored() const
    {
        std::vector<std::uint8_t> block;
        EXPECT_TRUE(product.model->ExportSettings(block));
        const Product reader(test::Whole{kText});
        EXPECT_TRUE(reader.model->ImportSettings(block.data(), block.size()));
        return reader.Number(kCopies);
    }

    static constexpr std::string_view kText = R"({
 "formatVersion": 1,
 "product": { "id": "test", "modelName": "Test 1", "uniqueId": "TST1",
              "controllerFamily": 8430, "languages": ["en"] },
 "features": [
  { "enum": 103, "name": "odrv-copies", "kind": "integer", "default": 1,
    "range": { "min": 1, "max": 99 } },
  { "enum": 545, "name": "odrv-warn", "kind": "option", "default": "no",
    "options": [ { "enum": 8690, "name": "no" }, { "enum": 8691, "name": "warn" } ] } ],
 "constraints": [] })";

    Product product{test::Whole{kText}};
    Recorder told;
    Recorder storing;
    std::vector<int> stored;
};

TEST_F(Acceptance, StoringComesAfterwardsAndGetsWhatObserversWrote)
{
    for (const auto event : {DataModelIds::kEventOk, DataModelIds::kEventApply}) {
        SCOPED_TRACE(event);
        stored.clear();
        SetCopies(5);
        const int before = Stored();
        told.reaction = [&] {
            EXPECT_TRUE(stored.empty());
            EXPECT_EQ(Stored(), before) << "not accepted yet";
            SetCopies(event == DataModelIds::kEventOk ? 6 : 7);
        };
        Send(event);
        EXPECT_EQ(stored, std::vector<int>{event == DataModelIds::kEventOk ? 6 : 7});
        EXPECT_FALSE(product.model->IsModified());
    }
}

TEST_F(Acceptance, NothingIsStoredUnlessAccepted)
{
    const auto fail = [] { throw std::runtime_error("observer"); };
    const auto reject = [&] {
        product.Set(DataModelIds::kFeatureApplyResult, DataModelIds::kValueApplyRejected);
    };
    for (const auto event : {DataModelIds::kEventOk, DataModelIds::kEventApply}) {
        SCOPED_TRACE(event);
        SetCopies(5);
        told.reaction = reject;
        Send(event);
        told.reaction = fail;
        product.Set(DataModelIds::kFeatureApplyResult,
                    static_cast<DataModelIds::tagValueEnum>(8690));
        EXPECT_THROW(Send(event), std::runtime_error);
        EXPECT_TRUE(storing.bundles.empty());

        // Who cannot store says so, and the person can still leave without the changes.
        told.reaction = nullptr;
        storing.reaction = fail;
        EXPECT_THROW(Send(event), std::runtime_error);
        EXPECT_TRUE(product.model->IsModified());
        storing.bundles.clear();
        Send(DataModelIds::kEventCancelQueried);
        EXPECT_EQ(product.Number(kCopies), 1);
    }
    SetCopies(5);
    Send(DataModelIds::kEventAccepted);
    EXPECT_TRUE(storing.bundles.empty()) << "for the model alone to tell";
    EXPECT_TRUE(product.model->IsModified());
}

} // namespace
