#include "testproduct.h"

#include "iconstrainthelper.h"

#include <gtest/gtest.h>

namespace {

using test::Product;

/// A constraint on the whole stapling feature, or on its value 6022, while the medium is film.
std::string Constraint(std::string_view kind, bool whole)
{
    return std::string(R"({ "id": "x", "when": [ { "feature": 100, "is": ["film"] } ], "effect": {
        "feature": 102, )") +
           (whole ? "" : R"("options": [6022], )") + R"("kind": ")" + std::string(kind) +
           R"(" }, "reason": 60000 })";
}

struct Effect
{
    const char* kind;
    bool whole;
    // What becomes of the feature while it has another value than 6022, while it has that value,
    // and of the option 6022. Letters: d disabled, c cleared, h hidden, i info, x conflict.
    const char* other;
    const char* same;
    const char* option;
};

std::string Letters(const InterpretedState& state)
{
    EXPECT_EQ(state.GetReason().IsEmpty(),
              !state.IsDisabled() && !state.IsCleared() && !state.IsHidden());
    return test::Letters(state);
}

TEST(Constraints, EveryEffectOnFeatureAndOption)
{
    const Effect effects[] = {
        {"disable", true, "di", "di", ""},  {"clear", true, "dci", "dci", ""},
        {"hide", true, "h", "h", ""},       {"info", true, "i", "i", ""},
        {"conflict", true, "x", "x", ""},   {"disable", false, "i", "x", "di"},
        {"clear", false, "i", "ci", "dci"}, {"hide", false, "", "x", "h"},
        {"info", false, "", "i", "i"},      {"conflict", false, "", "x", "x"},
    };
    for (const Effect& effect : effects) {
        SCOPED_TRACE(std::string(effect.kind) + (effect.whole ? " whole" : " option"));
        const Product product(Constraint(effect.kind, effect.whole));
        product.Set(test::kStaple, test::kNoStaple);
        EXPECT_EQ(Letters(product.State(test::kStaple)), "");
        product.Set(test::kMedia, test::kFilm);
        EXPECT_EQ(Letters(product.State(test::kStaple)), effect.other);
        EXPECT_EQ(Letters(product.OptionState(test::kStaple, 2)), effect.option);
        EXPECT_EQ(Letters(product.OptionState(test::kStaple, 1)), "") << "the other option";
        EXPECT_EQ(product.model->TestFeature(test::kStaple),
                  !(effect.whole && std::string(effect.kind) == "hide"));

        product.Set(test::kMedia, test::kPlain);
        product.Set(test::kStaple, test::kOneStaple);
        product.Set(test::kMedia, test::kFilm);
        EXPECT_EQ(Letters(product.State(test::kStaple)), effect.same);
        EXPECT_EQ(product.Get(test::kStaple), test::kOneStaple) << "the stored value stays";
        product.Set(test::kMedia, test::kPlain);
        EXPECT_EQ(Letters(product.State(test::kStaple)), "");
    }
}

TEST(Constraints, ReasonsNameCauseAndEffect)
{
    const Product product;
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(product.State(test::kSides).GetInfoBtnMsg(), L"2-sided (Sides) not with Media: Film");
    EXPECT_EQ(product.OptionState(test::kSides, 1).GetReason(),
              L"2-sided (Sides) not with Media: Film");
    EXPECT_FALSE(product.Set(test::kSides, test::kTwoSided)) << "disabled options are refused";
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);

    Product wordless(Constraint("disable", true));
    wordless.strings.texts.erase(60000);
    wordless.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(wordless.State(test::kStaple).GetReason(), L"#60000") << "a missing reason";
}

TEST(Constraints, AllConditionsMustHold)
{
    const Product product(R"({ "id": "x", "when": [
        { "feature": "odrv-media", "isNot": ["plain"] },
        { "feature": "odrv-copies", "compare": "greater", "value": 10 },
        { "feature": "odrv-width", "compare": "lessOrEqual", "value": 215.9 },
        { "feature": "odrv-collate", "is": [true] } ],
        "effect": { "feature": "odrv-booklet", "kind": "disable" }, "reason": 60000 })");
    const auto disabled = [&] { return product.State(test::kBooklet).IsDisabled(); };
    product.Set(test::kMedia, test::kFilm);
    EXPECT_FALSE(disabled());
    product.All().GetIntegerFeature(test::kCopies).SetValue(11);
    EXPECT_TRUE(disabled());
    auto width = product.All().GetDimensionFeature(test::kWidth);
    width.SetValue(Dimension(8.5, Dimension::UnitsEnum::Inch));
    EXPECT_TRUE(disabled()) << "8.5 inch is 215.9 mm exactly";
    width.SetValue(Dimension(2160, Dimension::UnitsEnum::TenthOfMillimetre));
    EXPECT_FALSE(disabled());
}

TEST(Constraints, AClearedFeatureCountsAsWithoutValueForOthers)
{
    const Product product(R"(
      { "id": "a", "when": [ { "feature": 130, "is": [true] } ],
        "effect": { "feature": 102, "kind": "clear" }, "reason": 60000 },
      { "id": "b", "when": [ { "feature": 102, "is": [6022] } ],
        "effect": { "feature": 104, "kind": "disable" }, "reason": 60000 })");
    product.Set(test::kStaple, test::kOneStaple);
    EXPECT_TRUE(product.State(test::kCollate).IsDisabled());
    product.All().GetBooleanFeature(test::kBooklet).SetValue(true);
    EXPECT_FALSE(product.State(test::kCollate).IsDisabled());
    product.All().GetBooleanFeature(test::kBooklet).SetValue(false);
    EXPECT_TRUE(product.State(test::kCollate).IsDisabled());
}

TEST(Constraints, OneForbiddenValueOfABooleanLeavesNothingToChoose)
{
    const Product product(R"({ "id": "x", "when": [ { "feature": 100, "is": ["film"] } ],
        "effect": { "feature": 130, "options": [true], "kind": "disable" }, "reason": 60000 })");
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(Letters(product.State(test::kBooklet)), "di");
    EXPECT_FALSE(product.All().GetBooleanFeature(test::kBooklet).SetValue(true));
    product.Set(test::kMedia, test::kPlain);
    product.All().GetBooleanFeature(test::kBooklet).SetValue(true);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(Letters(product.State(test::kBooklet)), "x");
    EXPECT_TRUE(product.All().GetBooleanFeature(test::kBooklet).SetValue(false)) << "the way out";
}

TEST(Constraints, AListHandsItsStateDown)
{
    const Product product(R"({ "id": "x", "when": [ { "feature": 100, "is": ["film"] } ],
        "effect": { "feature": "odrv-colour", "kind": "hide" }, "reason": 60000 })");
    const FeatureIdWithContext saturation(FeatureIdWithContext{test::kColour},
                                          FeatureId(test::kSaturation));
    test::Recorder recorder;
    const SettingsInstanceId all(DataModelIds::kSettingsCurrent);
    product.model->RegisterObserver(recorder, all, saturation, DataModelIds::kObserverFeature);
    EXPECT_TRUE(product.model->TestFeature(saturation));
    product.Set(test::kMedia, test::kFilm);
    EXPECT_FALSE(product.model->TestFeature(saturation));
    EXPECT_EQ(recorder.bundles, std::vector<std::string>{"odrv-colour/odrv-saturation state"});
    product.model->UnregisterObserver(recorder, all, saturation, DataModelIds::kObserverFeature);
}

TEST(Constraints, CanBeAddedAtRunTime)
{
    const Product product;
    auto& integrator = product.model->GetConstraintsIntegrator();
    EXPECT_TRUE(IConstraintHelper::AddConstraintInvalidCombinationByVector(
        integrator, FeatureFactory(test::kBooklet, true), test::kStaple,
        {test::kNoStaple, test::kOneStaple}));
    EXPECT_TRUE(product.All().GetBooleanFeature(test::kBooklet).SetValue(true));
    EXPECT_FALSE(product.Set(test::kStaple, test::kOneStaple));
    EXPECT_EQ(product.OptionState(test::kStaple, 2).GetReason(), L"Stapling not with Booklet");

    const Dimension from(100, Dimension::UnitsEnum::Millimetre);
    const Dimension to(200, Dimension::UnitsEnum::Millimetre);
    const MediaSizeRange size{test::kWidth, test::kWidth, from, to, from, to};
    EXPECT_TRUE(IConstraintHelper::AddConstraintMediaSizeRangeInvalidCombination(
        integrator, size, FeatureFactory(test::kSides, test::kTwoSided)));
    EXPECT_TRUE(IConstraintHelper::AddConstraintMediaSizeRangeInvalidCombination2(
        integrator, size, FeatureFactory(test::kMedia, test::kFilm)));
    auto width = product.All().GetDimensionFeature(test::kWidth);
    EXPECT_FALSE(product.Set(test::kMedia, test::kFilm)) << "210 mm lies outside";
    EXPECT_TRUE(product.Set(test::kSides, test::kTwoSided));
    width.SetValue(to);
    EXPECT_TRUE(product.State(test::kSides).HasCbrBtnMsg()) << "200 mm lies inside";
    EXPECT_TRUE(product.Set(test::kMedia, test::kFilm));

    EXPECT_FALSE(integrator.AddConstraint(
        ConstraintMkII(Condition(test::kAbsent, DataModelIds::kEqual, ValSet{1}),
                       Condition(test::kSides, DataModelIds::kInclude, ValSet{test::kTwoSided}))));
}

TEST(Constraints, AChangeEvaluatesOnlyWhatDependsOnIt)
{
    const Product product;
    const auto before = product.model->GetEvaluationCount();
    product.All().GetIntegerFeature(test::kCopies).SetValue(7);
    EXPECT_EQ(product.model->GetEvaluationCount(), before) << "nothing reads the copies";
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(product.model->GetEvaluationCount(), before + 1);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(product.model->GetEvaluationCount(), before + 1) << "no change";
}

} // namespace
