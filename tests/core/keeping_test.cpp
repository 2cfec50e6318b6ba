// What was chosen is kept: on every way out of the model and back, and nothing but that.
#include "testproduct.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

using test::Product;

constexpr auto Feature(int number)
{
    return static_cast<DataModelIds::tagFeatureEnum>(number);
}
constexpr auto Value(int number)
{
    return static_cast<DataModelIds::tagValueEnum>(number);
}

constexpr auto kBefore = Feature(201); ///< Follows the type, and stands before it.
constexpr auto kType = Feature(202);
constexpr auto kAfter = Feature(203); ///< The same behind it.
constexpr auto kEntry = Feature(204);
constexpr auto kRequired = Feature(205);
constexpr auto kSwitch = Feature(206);
constexpr auto kNone = Feature(207); ///< Starts without a value.
constexpr auto kReported = Feature(208);
constexpr auto kReportedItems = Feature(209);

constexpr auto kLight = Value(6011);
constexpr auto kHeavy = Value(6012);
constexpr auto kFirst = Value(6001);
constexpr auto kSecond = Value(6002);

std::string Text(std::string_view constraints = {})
{
    return R"({ "formatVersion": 1,
 "product": { "id": "test", "modelName": "Test 1", "uniqueId": "TST1",
              "controllerFamily": 8430, "languages": ["en"] },
 "features": [
  { "enum": 201, "name": "odrv-before", "kind": "integer", "default": 10,
    "defaults": [ { "when": [ { "feature": "odrv-type", "is": ["heavy"] } ], "value": 14 } ] },
  { "enum": 202, "name": "odrv-type", "kind": "option", "default": "light",
    "options": [ { "enum": 6011, "name": "light" }, { "enum": 6012, "name": "heavy" } ] },
  { "enum": 203, "name": "odrv-after", "kind": "integer", "default": 10,
    "defaults": [ { "when": [ { "feature": "odrv-type", "is": ["heavy"] } ], "value": 14 } ] },
  { "enum": 204, "name": "odrv-entry", "kind": "option", "default": "first",
    "options": [ { "enum": 5001, "name": "unspecified" }, { "enum": 6001, "name": "first" },
                 { "enum": 6002, "name": "second" } ] },
  { "enum": 205, "name": "odrv-required", "kind": "option", "default": "first",
    "flags": ["required"],
    "options": [ { "enum": 5001, "name": "unspecified" }, { "enum": 6001, "name": "first" },
                 { "enum": 6002, "name": "second" } ] },
  { "enum": 206, "name": "odrv-switch", "kind": "boolean", "default": false },
  { "enum": 207, "name": "odrv-none", "kind": "option",
    "options": [ { "enum": 6001, "name": "first" }, { "enum": 6002, "name": "second" } ] },
  { "enum": 208, "name": "odrv-reported", "kind": "integer", "default": 1,
    "flags": ["stateOnly"] },
  { "enum": 209, "name": "odrv-reported-items", "kind": "values", "flags": ["stateOnly"],
    "item": { "kind": "list", "features": [
      { "enum": 210, "name": "odrv-level", "kind": "integer", "default": 1 } ] } } ],
 "constraints": [)" +
           std::string(constraints) + "] }";
}

std::string Effect(std::string_view kind, std::string_view target)
{
    return R"({ "id": "x", "when": [ { "feature": "odrv-switch", "is": [true] } ],
                "effect": { "kind": ")" +
           std::string(kind) + R"(", )" + std::string(target) + R"( }, "reason": 60000 })";
}

/// A file of this test alone.
class TicketFile
{
public:
    ~TicketFile() { std::filesystem::remove(path); }

    const std::filesystem::path path =
        std::filesystem::temp_directory_path() /
        (std::string("o7-keeping-") +
         testing::UnitTest::GetInstance()->current_test_info()->name() + ".json");
};

void ThroughBlock(const Product& from, const Product& to)
{
    std::vector<std::uint8_t> block;
    EXPECT_TRUE(from.model->ExportSettings(block));
    EXPECT_TRUE(to.model->ImportSettings(block.data(), block.size()));
}

void ThroughTicket(const Product& from, const Product& to)
{
    const TicketFile file;
    std::string message;
    EXPECT_TRUE(from.model->SaveJobTicket(file.path, message)) << message;
    EXPECT_EQ(to.model->LoadJobTicket(file.path).outcome, o7::JobTicketOutcome::Loaded);
}

/// Somebody changes the copy of the settings in every respect, and cancels.
void ThroughCancel(const Product& from, const Product& to)
{
    ThroughBlock(from, to);
    to.Set(kType, to.Get(kType) == kHeavy ? kLight : kHeavy);
    for (const auto feature : {kBefore, kAfter}) {
        auto number = to.All().GetIntegerFeature(feature);
        number.SetValue(33);
        number.RestoreToDefaultValue();
    }
    to.model->RevertToAccepted();
}

constexpr void (*kWays[])(const Product&, const Product&) = {ThroughBlock, ThroughTicket,
                                                             ThroughCancel};

TEST(Keeping, AChoiceStaysAChoiceAndADefaultGoesOnFollowing)
{
    // chosen: 0 for what follows the type; accepted with a type, looked at with both.
    const struct
    {
        int chosen;
        DataModelIds::tagValueEnum type;
    } rows[] = {{10, kLight}, {10, kHeavy}, {14, kLight}, {14, kHeavy},
                {12, kLight}, {12, kHeavy}, {0, kLight},  {0, kHeavy}};
    for (std::size_t way = 0; way < std::size(kWays); ++way) {
        for (const auto& row : rows) {
            SCOPED_TRACE(testing::Message() << way << " " << row.chosen << " " << row.type);
            const Product from(test::Whole{Text()});
            for (const auto feature : {kBefore, kAfter}) {
                auto number = from.All().GetIntegerFeature(feature);
                if (row.chosen != 0) {
                    number.SetValue(33);
                    number.SetValue(row.chosen);
                }
            }
            from.Set(kType, row.type);
            from.model->CommitAccepted();
            const Product to(test::Whole{Text()});
            kWays[way](from, to);
            EXPECT_EQ(to.Get(kType), row.type);
            EXPECT_FALSE(to.model->IsModified());
            for (const auto type : {row.type, kHeavy, kLight}) {
                to.Set(kType, type);
                const int expected = row.chosen != 0 ? row.chosen : type == kHeavy ? 14 : 10;
                EXPECT_EQ(to.Number(kBefore), expected) << type;
                EXPECT_EQ(to.Number(kAfter), expected) << type;
            }
        }
    }
}

TEST(Keeping, ItemsThatAreStillWantedStay)
{
    const Product product;
    auto pages = product.All().GetListOfValues(test::kSpecialPages);
    std::vector<ListOfFeaturesRef> items;
    for (const int copies : {3, 4}) {
        items.push_back(pages.CreateListOfFeatures());
        items.back().GetIntegerFeature(test::kCopies).SetValue(copies);
    }
    const FeatureIdWithContext firstId = items[0].GetFeatureIdWithContextRef();
    product.model->CommitAccepted();
    const auto expectAccepted = [&] {
        ASSERT_EQ(pages.GetNumItems(), 2U);
        EXPECT_EQ(test::Number(pages.GetListOfFeatures(0), test::kCopies), 3);
        EXPECT_TRUE(items[1].IsSupported());
        EXPECT_EQ(test::Number(items[1], test::kCopies), 4);
        EXPECT_EQ(pages.GetListOfFeatures(1), items[1]);
        EXPECT_FALSE(product.model->IsModified());
    };
    items[1].GetIntegerFeature(test::kCopies).SetValue(9);
    pages.CreateListOfFeatures();
    product.model->RevertToAccepted();
    expectAccepted();
    EXPECT_TRUE(items[0].IsSupported());

    // The one that was deleted comes back in its place, under its name.
    pages.DeleteItem(0);
    pages.CreateListOfFeatures();
    product.model->RevertToAccepted();
    expectAccepted();
    EXPECT_EQ(pages.GetListOfFeatures(0).GetFeatureIdWithContextRef(), firstId);
    test::Recorder recorder;
    const SettingsInstanceId all(DataModelIds::kSettingsCurrent);
    product.model->RegisterObserver(recorder, all, test::kSpecialPages,
                                    DataModelIds::kObserverFeature);
    product.model->RevertToAccepted();
    EXPECT_TRUE(recorder.bundles.empty()) << "there was nothing to cancel";
    product.model->UnregisterObserver(recorder, all, test::kSpecialPages,
                                      DataModelIds::kObserverFeature);

    // What comes from elsewhere knows no keys: item by item.
    ThroughBlock(product, product);
    expectAccepted();
    const Product other;
    EXPECT_TRUE(other.All().CopyFrom(product.All()));
    EXPECT_TRUE(product.All().CopyFrom(other.All()));
    expectAccepted();
    other.All().GetListOfValues(test::kSpecialPages).DeleteItem(1);
    EXPECT_TRUE(product.All().CopyFrom(other.All()));
    EXPECT_EQ(pages.GetNumItems(), 1U);
    EXPECT_FALSE(items[1].IsSupported());
}

TEST(Keeping, WhatTheDeviceReportsIsNobodysChange)
{
    const Product product(test::Whole{Text()});
    auto reported = product.All().GetIntegerFeature(kReported);
    auto items = product.All().GetListOfValues(kReportedItems);
    const auto report = [&](int value) {
        reported.SetValue(value);
        items.DeleteAllItems();
        items.CreateListOfFeatures().GetIntegerFeature(Feature(210)).SetValue(value);
    };
    const auto expectReported = [&](int value) {
        EXPECT_EQ(product.Number(kReported), value);
        ASSERT_EQ(items.GetNumItems(), 1U);
        EXPECT_EQ(test::Number(items.GetListOfFeatures(0), Feature(210)), value);
    };
    report(2);
    EXPECT_FALSE(product.model->IsModified());
    product.Set(kType, kHeavy);
    product.model->RevertToAccepted();
    expectReported(2);
    {
        const auto transaction = product.model->OpenTransaction();
        product.Set(kType, kHeavy);
        report(3);
    }
    EXPECT_EQ(product.Get(kType), kLight);
    expectReported(3);
    EXPECT_TRUE(product.All().RestoreToDefaultValue());
    product.model->CommitAccepted();
    const Product other(test::Whole{Text()});
    ThroughBlock(product, other);
    ThroughTicket(product, other);
    EXPECT_TRUE(other.All().CopyFrom(product.All()));
    EXPECT_EQ(other.Number(kReported), 1);
    EXPECT_EQ(other.All().GetListOfValues(kReportedItems).GetNumItems(), 0U);
}

TEST(Keeping, TheUnspecifiedEntryIsNoValue)
{
    const auto write = [](const Product& product, DataModelIds::tagFeatureEnum feature, bool name) {
        auto option = product.All().GetOptionFeature(feature);
        name ? static_cast<void>(option.SetValue(CXString(L"unspecified")))
             : static_cast<void>(option.SetValue(DataModelIds::kValueUnspecified));
        return option.IsSpecified();
    };
    for (const bool name : {false, true}) {
        const Product product(test::Whole{Text()});
        EXPECT_FALSE(write(product, kEntry, name));
        EXPECT_EQ(product.Get(kEntry), DataModelIds::kValueUnspecified);
        EXPECT_TRUE(write(product, kRequired, name));
        EXPECT_EQ(product.Get(kRequired), kFirst);
        product.model->CommitAccepted();
        for (const auto way : kWays) {
            const Product other(test::Whole{Text()});
            other.Set(kRequired, kSecond);
            way(product, other);
            EXPECT_FALSE(other.All().GetOptionFeature(kEntry).IsSpecified());
            EXPECT_EQ(other.Get(kRequired), kFirst);
        }
        const Product copy(test::Whole{Text()});
        EXPECT_TRUE(copy.All().CopyFrom(product.All()));
        EXPECT_FALSE(copy.All().GetOptionFeature(kEntry).IsSpecified());
    }
    // A ticket that says so by the entry's name.
    const TicketFile file;
    std::ofstream(file.path) << R"({"format":"o7-job-ticket","version":1,"product":"TST1",)"
                             << R"("checksum":"1a275dac","settings":{"odrv-entry":"unspecified",)"
                             << R"("odrv-required":"unspecified"}})";
    const Product product(test::Whole{Text()});
    product.Set(kRequired, kSecond);
    EXPECT_EQ(product.model->LoadJobTicket(file.path).outcome, o7::JobTicketOutcome::Loaded);
    EXPECT_FALSE(product.All().GetOptionFeature(kEntry).IsSpecified());
    EXPECT_EQ(product.Get(kRequired), kFirst);
}

TEST(Keeping, WhatIsRefusedDoesNotComeBackAsTheLastValue)
{
    const Product product(
        test::Whole{Text(Effect("disable", R"("feature": "odrv-none", "options": ["first"])"))});
    product.Set(kNone, kFirst);
    auto none = product.All().GetOptionFeature(kNone);
    EXPECT_TRUE(none.SetIsSpecified(false));
    EXPECT_TRUE(product.All().GetBooleanFeature(kSwitch).SetValue(true));
    EXPECT_FALSE(none.SetIsSpecified(true));
    EXPECT_FALSE(none.IsSpecified());
    EXPECT_TRUE(product.All().GetBooleanFeature(kSwitch).SetValue(false));
    EXPECT_TRUE(none.SetIsSpecified(true));
    EXPECT_EQ(product.Get(kNone), kFirst);
}

TEST(Keeping, TheUnspecifiedEntryHasTheWholeState)
{
    const struct
    {
        const char* kind;
        const char* letters;
    } rows[] = {
        {"disable", "di"}, {"clear", "dci"}, {"hide", "h"}, {"info", "i"}, {"conflict", "x"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.kind);
        const Product product(test::Whole{
            Text(Effect(row.kind, R"("feature": "odrv-entry", "options": ["unspecified"])"))});
        EXPECT_TRUE(product.All().GetBooleanFeature(kSwitch).SetValue(true));
        const auto state = product.All()
                               .GetOptionFeature(kEntry)
                               .GetCapabilities()
                               ->GetUnspecifiedInterpretedState();
        EXPECT_EQ(test::Letters(state), row.letters);
        const bool limited = std::string_view(row.letters).find_first_of("dh") == 0;
        EXPECT_EQ(product.Set(kEntry, DataModelIds::kValueUnspecified), !limited);
    }
}

TEST(Keeping, WhatIsRequiredKeepsAValueWhateverComesIn)
{
    std::string text = Text();
    const std::string_view flag = R"("flags": ["required"],)";
    text.replace(text.find(flag), flag.size(), "");
    const Product lenient(test::Whole{text});
    EXPECT_TRUE(lenient.Set(kRequired, DataModelIds::kValueUnspecified));
    lenient.model->CommitAccepted();
    const Product strict(test::Whole{Text()});
    for (const auto way : {ThroughBlock, ThroughTicket}) {
        strict.Set(kRequired, kSecond);
        way(lenient, strict);
        EXPECT_EQ(strict.Get(kRequired), kFirst);
    }
    EXPECT_TRUE(strict.Set(kRequired, kSecond));
    EXPECT_TRUE(strict.All().CopyFrom(lenient.All()));
    EXPECT_EQ(strict.Get(kRequired), kSecond);
}

TEST(Keeping, OneKindDoesNotTakeOverAnother)
{
    const Product product(test::Whole{Text()});
    const auto node = [&](DataModelIds::tagFeatureEnum feature) {
        return product.All().GetFeature(feature)->GetNode();
    };
    const DataModelIds::tagFeatureEnum kinds[] = {kType, kSwitch, kBefore, kReportedItems};
    for (const auto to : kinds) {
        for (const auto from : kinds)
            EXPECT_EQ(node(to)->CopyFrom(*node(from)), to == from) << to << " " << from;
        EXPECT_FALSE(node(to)->CopyFrom(*product.All().GetNode()));
    }
    // A feature of the same number and another kind is passed over with the rest taken.
    std::string text = Text();
    const std::string_view flag = R"("kind": "boolean", "default": false)";
    text.replace(text.find(flag), flag.size(), R"("kind": "string", "default": "on")");
    const Product other(test::Whole{text});
    other.Set(kType, kHeavy);
    EXPECT_TRUE(product.All().CopyFrom(other.All()));
    EXPECT_EQ(product.Get(kType), kHeavy);
    bool on = true;
    EXPECT_TRUE(
        product.All().GetBooleanFeature(kSwitch).GetValue(on, FeatureRef::kAssertIfUnsupported));
    EXPECT_FALSE(on);
}

TEST(Keeping, WhatIsInstalledNeverGivesWay)
{
    std::string text =
        Text(R"({ "id": "n", "never": [ { "feature": "odrv-switch", "isNot": [true] },
        { "feature": "odrv-type", "is": ["heavy"] } ], "limit": ["odrv-type"], "reason": 60000 })");
    const std::string_view plain = R"("kind": "boolean", "default": false)";
    for (const bool device : {false, true}) {
        if (device)
            text.replace(text.find(plain), plain.size(),
                         std::string(plain) + R"(, "flags": ["device"])");
        const Product product(test::Whole{text});
        const auto proposal =
            product.model->ProposeChange(kType, o7::FeatureValue(ValueId(kHeavy)));
        ASSERT_EQ(proposal.conflicts.size(), 1U);
        bool switches = false;
        for (const auto& alternative : proposal.alternatives) {
            for (const auto& change : alternative.changes)
                switches = switches || change.feature == FeatureIdWithContext(kSwitch);
        }
        EXPECT_EQ(switches, !device);
    }
}

} // namespace
