// Settings that another one governs: what holds meanwhile, and the person's own value behind it.
#include "testproduct.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace {

using test::Product;

constexpr auto kMillimetre = Dimension::UnitsEnum::Millimetre;
const SettingsInstanceId kInstance(DataModelIds::kSettingsCurrent);

/// Booklet prints both sides; film has a size, and the width follows it.
constexpr std::string_view kGoverned = R"(
  { "id": "device", "when": [ { "feature": "odrv-collate", "is": [false] } ],
    "effect": { "feature": "odrv-sides", "kind": "force", "to": "one" }, "reason": 60001 },
  { "id": "booklet", "when": [ { "feature": "odrv-booklet", "is": [true] } ],
    "effect": { "feature": "odrv-sides", "kind": "force", "to": "two" }, "reason": 60000 },
  { "id": "paper", "when": [ { "feature": "odrv-copies", "compare": "less", "value": 99 } ],
    "effect": { "feature": "odrv-width", "kind": "force", "toWidthOf": "odrv-media" },
    "reason": 60000 },
  { "id": "reader", "when": [ { "feature": "odrv-sides", "is": ["two"] } ],
    "effect": { "feature": "odrv-staple", "options": [6022], "kind": "disable" },
    "reason": 60000 })";

std::string Sized()
{
    std::string text = test::PackageText(kGoverned);
    const std::string_view film = R"("name": "film" } ] },
  { "enum": 101)";
    text.replace(text.find(film), film.size(), R"("name": "film", "size": [148.5, 210] } ] },
  { "enum": 101)");
    return text;
}

class Governed : public testing::Test
{
protected:
    void Booklet(bool on) { product.All().GetBooleanFeature(test::kBooklet).SetValue(on); }
    double Width() const
    {
        Dimension width;
        product.All()
            .GetDimensionFeature(test::kWidth)
            .GetValue(width, FeatureRef::kAssertIfUnsupported);
        return width.GetDoubleValue(kMillimetre);
    }
    bool OwnSides(const Product& of) const { return of.Get(test::kSides) == test::kTwoSided; }

    std::string text = Sized();
    Product product{test::Whole{text}};
};

TEST_F(Governed, ShowTheForcedValueAndKeepTheirOwn)
{
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);
    Booklet(true);
    EXPECT_EQ(product.Get(test::kSides), test::kTwoSided);
    EXPECT_EQ(test::Letters(product.State(test::kSides)), "di");
    EXPECT_EQ(product.State(test::kSides).GetReason(), CXString(L"Sides not with Booklet"));
    EXPECT_FALSE(product.Set(test::kStaple, test::kOneStaple)) << "rules read what holds";
    EXPECT_FALSE(product.Set(test::kSides, test::kOneSided)) << "nobody sets what is governed";
    EXPECT_TRUE(product.Set(test::kSides, test::kTwoSided)) << "what holds already";
    Booklet(false);
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);
    EXPECT_EQ(test::Letters(product.State(test::kSides)), "");
    EXPECT_TRUE(product.Set(test::kStaple, test::kOneStaple));
}

TEST_F(Governed, DifferFromTheirDefaultOnlyByTheirOwnValue)
{
    const auto differs = [&] {
        const auto node = product.All().GetFeature(test::kSides)->GetNode();
        o7::FeatureValue value;
        o7::FeatureValue standard;
        return node->GetValue(value) && node->GetDefaultValue(standard) && value != standard;
    };
    Booklet(true);
    EXPECT_FALSE(differs());
    Booklet(false);
    product.Set(test::kSides, test::kTwoSided);
    product.All().GetBooleanFeature(test::kCollate).SetValue(false);
    EXPECT_FALSE(differs()) << "one-sided is the default, whatever lies behind it";
    product.All().GetBooleanFeature(test::kCollate).SetValue(true);
    Booklet(true);
    EXPECT_TRUE(differs());
    product.All().GetFeature(test::kSides)->RestoreToDefaultValue();
    EXPECT_FALSE(differs());
    Booklet(false);
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);
}

TEST_F(Governed, TheFirstRuleOfThePackageCounts)
{
    product.Set(test::kSides, test::kTwoSided);
    Booklet(true);
    product.All().GetBooleanFeature(test::kCollate).SetValue(false);
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);
    Booklet(false);
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);
    product.All().GetBooleanFeature(test::kCollate).SetValue(true);
    EXPECT_EQ(product.Get(test::kSides), test::kTwoSided);
}

TEST_F(Governed, TakeASideOfTheMedium)
{
    EXPECT_EQ(Width(), 210) << "plain has no size";
    product.All().GetDimensionFeature(test::kWidth).SetValue(Dimension(120, kMillimetre));
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(Width(), 148.5);
    EXPECT_TRUE(product.State(test::kWidth).IsDisabled());
    product.All().GetIntegerFeature(test::kCopies).SetValue(99);
    EXPECT_EQ(Width(), 120) << "the other condition";
    product.All().GetIntegerFeature(test::kCopies).SetValue(1);
    product.Set(test::kMedia, test::kPlain);
    EXPECT_EQ(Width(), 120);
}

TEST(GovernedSizes, FollowFromMediumToMedium)
{
    std::string text = Sized();
    const std::string_view plain = R"("name": "plain" }, { "enum": 6002, "name": "film", "size")";
    text.replace(
        text.find(plain), plain.size(),
        R"("name": "plain", "size": [210, 297] }, { "enum": 6002, "name": "film", "size")");
    const Product product{test::Whole{text}};
    test::Recorder recorder;
    product.model->RegisterObserver(recorder, kInstance, test::kWidth, 1);
    product.Set(test::kMedia, test::kFilm);
    Dimension width;
    product.All()
        .GetDimensionFeature(test::kWidth)
        .GetValue(width, FeatureRef::kAssertIfUnsupported);
    EXPECT_EQ(width.GetDoubleValue(kMillimetre), 148.5) << "the rule held before and holds now";
    ASSERT_EQ(recorder.bundles.size(), 1U);
    EXPECT_NE(recorder.bundles[0].find("odrv-width value"), std::string::npos)
        << recorder.bundles[0];
    product.model->UnregisterObserver(recorder, kInstance, test::kWidth, 1);
}

TEST_F(Governed, TellTheirObserversBothWays)
{
    test::Recorder recorder;
    product.model->RegisterObserver(recorder, kInstance, test::kSides, 1);
    Booklet(true);
    Booklet(false);
    const auto transaction = product.model->OpenTransaction();
    Booklet(true);
    transaction->Close(false);
    ASSERT_EQ(recorder.bundles.size(), 3U);
    for (const std::string& bundle : recorder.bundles)
        EXPECT_EQ(bundle, "odrv-sides value, odrv-sides state");
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);
    product.model->UnregisterObserver(recorder, kInstance, test::kSides, 1);
}

TEST_F(Governed, KeepTheirOwnValueInBlockTicketAndCancel)
{
    Booklet(true);
    product.model->CommitAccepted();
    const auto file = std::filesystem::path(testing::TempDir()) / "governed.json";
    std::string message;
    ASSERT_TRUE(product.model->SaveJobTicket(file, message)) << message;
    std::vector<std::uint8_t> block;
    ASSERT_TRUE(product.model->ExportSettings(block));

    Product fromTicket{test::Whole{text}};
    EXPECT_EQ(fromTicket.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
    Product fromBlock{test::Whole{text}};
    EXPECT_TRUE(fromBlock.model->ImportSettings(block.data(), block.size()));
    Product copy{test::Whole{text}};
    EXPECT_TRUE(copy.All().CopyFrom(product.All()));
    for (Product* other : {&fromTicket, &fromBlock, &copy}) {
        EXPECT_TRUE(OwnSides(*other)) << "what holds";
        other->All().GetBooleanFeature(test::kBooklet).SetValue(false);
        EXPECT_FALSE(OwnSides(*other)) << "its own";
    }
    std::filesystem::remove(file);

    Booklet(false);
    product.model->RevertToAccepted();
    EXPECT_TRUE(OwnSides(product));
    EXPECT_FALSE(product.model->IsModified());
}

TEST_F(Governed, AreToldAsAConsequenceAndNeverGiveWay)
{
    const auto proposal = product.model->ProposeChange(test::kBooklet, true);
    ASSERT_FALSE(proposal.alternatives.empty());
    const auto consequences = product.model->PreviewAlternative(proposal.alternatives.front());
    const auto sides = std::find_if(consequences.begin(), consequences.end(), [](const auto& one) {
        return one.feature == FeatureIdWithContext(test::kSides);
    });
    ASSERT_NE(sides, consequences.end());
    EXPECT_EQ(std::get<ValueId>(sides->before).GetDisplayString(), CXString(L"1-sided"));
    EXPECT_EQ(std::get<ValueId>(sides->after).GetDisplayString(), CXString(L"2-sided"));
    Booklet(true);
    const auto reasons = product.model->GetStateReasons(test::kSides, ValueId());
    ASSERT_EQ(reasons.size(), 1U);
    EXPECT_EQ(reasons[0].effect, o7::EffectKind::Force);
    ASSERT_FALSE(reasons[0].remedies.empty());
    EXPECT_EQ(reasons[0].remedies[0].front().feature, FeatureIdWithContext(test::kBooklet));
}

std::string Faults(const std::string& effect)
{
    std::vector<o7::PackageError> errors;
    o7::ParseProductPackage(
        test::PackageText(R"({ "id": "x", "when": [ { "feature": 130, "is": [true] } ],
            "effect": {)" +
                          effect + R"(}, "reason": 60000 })"),
        "test/package.json", errors);
    std::string text;
    for (const auto& error : errors)
        text += error.message + "\n";
    return text;
}

TEST(GovernedPackage, RefusesWhatCannotBeMeant)
{
    struct Case
    {
        const char* effect;
        const char* fault;
    };
    const Case cases[] = {
        {R"("feature": 101, "kind": "force")", "expected one of \"to\""},
        {R"("feature": 101, "kind": "disable", "to": "two")", "expected one of \"to\""},
        {R"("feature": 101, "kind": "force", "to": "two", "options": ["one"])", "expected one of"},
        {R"("feature": 101, "kind": "force", "to": "three")", "has no value \"three\""},
        {R"("feature": 102, "kind": "force", "to": null)", "expected a value to force"},
        {R"("feature": 103, "kind": "force", "to": 150)", "the default 150 is not among"},
        {R"("feature": 101, "kind": "force", "toWidthOf": 100)", "expected a dimension"},
        {R"("feature": 107, "kind": "force", "toHeightOf": 100)", "no option with a size"},
        {R"("feature": 110, "kind": "force", "to": 1)", "has no value 1"},
        {R"("feature": 130, "kind": "force", "to": false)", "in a circle: x -> x"},
    };
    for (const Case& one : cases) {
        const std::string faults = Faults(one.effect);
        EXPECT_NE(faults.find(one.fault), std::string::npos) << one.effect << ": " << faults;
    }
}

} // namespace
