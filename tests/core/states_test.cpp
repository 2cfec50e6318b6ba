// What a state says has to be true: no conflict of what counts for nothing, nothing to choose where
// one value is left, and sentences that name what can be done now.
#include "testproduct.h"

#include "packageanalysis.h"

#include <gtest/gtest.h>

namespace {

using test::Letters;
using test::Product;

std::string Rule(std::string_view when, std::string_view effect, int reason = 60000)
{
    static int number = 0;
    return R"({ "id": "r)" + std::to_string(++number) + R"(", "when": [)" + std::string(when) +
           R"(], "effect": {)" + std::string(effect) + R"(}, "reason": )" + std::to_string(reason) +
           " }";
}

constexpr std::string_view kFilmIs = R"({ "feature": 100, "is": ["film"] })";
constexpr std::string_view kBookletIs = R"({ "feature": 130, "is": [true] })";

TEST(States, WhatCountsForNothingIsInNoConflict)
{
    for (const char* kind : {"disable", "clear", "hide", "force\", \"to\": \"none"}) {
        SCOPED_TRACE(kind);
        const Product product(
            Rule(kFilmIs, R"("feature": 102, "options": [6022], "kind": "disable")") + "," +
            Rule(kFilmIs, R"("feature": 102, "kind": "conflict")") + "," +
            Rule(kBookletIs, R"("feature": 102, "kind": ")" + std::string(kind) + "\""));
        product.Set(test::kStaple, test::kOneStaple);
        product.Set(test::kMedia, test::kFilm);
        EXPECT_TRUE(product.State(test::kStaple).HasCbrBtnMsg());
        EXPECT_EQ(product.model->GetFeaturesInConflict().size(), 1U);
        for (const bool booklet : {true, false}) {
            product.All().GetBooleanFeature(test::kBooklet).SetValue(booklet);
            EXPECT_EQ(product.State(test::kStaple).HasCbrBtnMsg(), !booklet);
            EXPECT_EQ(product.model->GetFeaturesInConflict().empty(), booklet);
            for (const auto& reason : product.model->GetStateReasons(test::kStaple, ValueId()))
                EXPECT_EQ(reason.effect == o7::EffectKind::Conflict, !booklet) << reason.id;
        }
    }
}

TEST(States, OfAListReachWhatIsInIt)
{
    const Product product(Rule(kBookletIs, R"("feature": 110, "kind": "disable")") + "," +
                          Rule(kFilmIs, R"("feature": 110, "kind": "conflict")"));
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(product.model->GetFeaturesInConflict().size(), 1U);
    product.All().GetBooleanFeature(test::kBooklet).SetValue(true);
    EXPECT_TRUE(product.model->GetFeaturesInConflict().empty());
}

TEST(States, WhereOneValueIsLeftThereIsNothingToChoose)
{
    const Product product(
        Rule(kFilmIs, R"("feature": 101, "isNot": ["one"], "kind": "disable")", 60001));
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(Letters(product.State(test::kSides)), "di");
    EXPECT_EQ(test::Narrow(product.State(test::kSides).GetReason()),
              "2-sided (Sides) not with Media: Film")
        << "all that is affected";
    // Chosen before, it is a conflict with a way out.
    product.Set(test::kMedia, test::kPlain);
    product.Set(test::kSides, test::kTwoSided);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(Letters(product.State(test::kSides)), "x");
    EXPECT_TRUE(product.Set(test::kSides, test::kOneSided));
    EXPECT_EQ(Letters(product.State(test::kSides)), "di");
}

TEST(States, NameAWayOutOnlyWhileItIsOpen)
{
    test::Recorder recorder;
    Product product(Rule(R"({ "feature": 130, "isNot": [true] })",
                         R"("feature": 102, "options": [6022], "kind": "disable")", 60002) +
                    "," + Rule(kFilmIs, R"("feature": 130, "kind": "clear")"));
    product.strings.texts[60002] = L"No booklet.{?0} Select {0}.";
    const auto told = [&] {
        return test::Narrow(product.OptionState(test::kStaple, 2).GetReason());
    };
    const SettingsInstanceId states(DataModelIds::kSettingsConstraintState);
    EXPECT_EQ(told(), "No booklet. Select Booklet.");
    product.model->RegisterObserver(recorder, states, test::kStaple, 1);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(told(), "No booklet.");
    product.Set(test::kMedia, test::kPlain);
    EXPECT_EQ(told(), "No booklet. Select Booklet.");
    EXPECT_EQ(recorder.bundles.size(), 2U) << "who shows it has to know";
    product.model->UnregisterObserver(recorder, states, test::kStaple, 1);
}

TEST(States, SayLengthsAsThePersonReadsThem)
{
    const Product product(Rule(R"({ "feature": "odrv-width", "compare": "less", "value": 150 })",
                               R"("feature": 102, "kind": "disable")", 60001));
    product.All()
        .GetDimensionFeature(test::kWidth)
        .SetValue(Dimension(114.3, Dimension::UnitsEnum::Millimetre));
    const auto told = [&] { return product.State(test::kStaple).GetReason(); };
    EXPECT_GE(told().Find(L"114.3\u00a0mm"), 0) << told().ToUtf8();
    product.model->SetLengthFormat({false, L',', CXString(L"mm"), CXString(L"Zoll")});
    EXPECT_GE(told().Find(L"4,5\u00a0Zoll"), 0) << told().ToUtf8();
}

TEST(States, RequireAValueWhileTheirGovernorAsksForIt)
{
    const Product product(Rule(kBookletIs, R"("feature": 105, "kind": "require")") + "," +
                          Rule(kFilmIs, R"("feature": 105, "kind": "disable")"));
    const auto isRequired = [&] {
        return product.All().GetFeature(test::kName)->GetCapabilities()->IsRequired();
    };
    EXPECT_FALSE(isRequired());
    product.All().GetBooleanFeature(test::kBooklet).SetValue(true);
    EXPECT_TRUE(isRequired());
    EXPECT_EQ(Letters(product.State(test::kName)), "i");
    product.Set(test::kMedia, test::kFilm);
    EXPECT_FALSE(isRequired()) << "greyed, nobody could give it one";
}

TEST(Analysis, NamesChangesThatPutUntouchedSettingsInConflict)
{
    const Product product(
        Rule(kFilmIs, R"("feature": 101, "options": ["one"], "kind": "disable")") + "," +
        Rule(kBookletIs, R"("feature": 130, "kind": "conflict")"));
    std::vector<std::string> told;
    for (const auto& finding : o7::AnalyseProductPackage(*product.package)) {
        if (finding.kind == o7::PackageFindingKind::UntouchedConflict)
            told.push_back(finding.message);
    }
    ASSERT_EQ(told.size(), 1U) << "what the person changed is touched";
    EXPECT_NE(told[0].find("odrv-media film puts odrv-sides one"), std::string::npos) << told[0];
}

} // namespace
