#include "testproduct.h"

#include "iconstrainthelper.h"
#include "packageanalysis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using test::Letters;
using test::Product;

std::string Disable(std::string_view when, std::string_view effect)
{
    return std::string(R"({ "id": "x", "when": [)") + std::string(when) + R"(], "effect": {)" +
           std::string(effect) + R"(, "kind": "disable" }, "reason": 60000 })";
}

/// A constraint on stapling, a number of copies, and whether stapling one is disabled then.
struct Shape
{
    std::string_view condition;
    int copies; ///< 0: unspecified
    bool holds;
};

// Which copies can be chosen while film is, of 1 to 99 and 200 to 999.
TEST(Engine, ForbiddenNumbersAreNotOffered)
{
    const struct
    {
        std::string_view effect;
        std::vector<RangeOfInteger> open;
    } rows[] = {
        {R"("compare": "greater", "value": 50)", {{1, 50}}},
        {R"("compare": "greaterOrEqual", "value": 500)", {{1, 99}, {200, 499}}},
        {R"("compare": "less", "value": 10)", {{10, 99}, {200, 999}}},
        {R"("compare": "lessOrEqual", "value": 300)", {{301, 999}}},
        {R"("between": [10, 20])", {{1, 9}, {21, 99}, {200, 999}}},
        {R"("between": [90, 210])", {{1, 89}, {211, 999}}},
        {R"("outside": [10, 20])", {{10, 20}}},
        {R"("compare": "equal", "value": 99)", {{1, 98}, {200, 999}}},
        {R"("options": [1, 999])", {{2, 99}, {200, 998}}},
        {R"("isNot": [7, 300])", {{7, 7}, {300, 300}}},
        // With nothing left the product's own ranges say more than none would.
        {R"("compare": "less", "value": 5000)", {{1, 99}, {200, 999}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.effect);
        const Product product(Disable(R"({ "feature": 100, "is": ["film"] })",
                                      R"("feature": 103, )" + std::string(row.effect)));
        const auto ranges = [&] {
            const auto all = product.All().GetIntegerFeature(test::kCopies).GetRangeCapabilities();
            EXPECT_EQ(all->GetSupportedRanges(),
                      (std::vector<RangeOfInteger>{{1, 99}, {200, 999}}));
            std::vector<RangeOfInteger> each;
            for (std::size_t index = 0; index < all->GetNumberOfValues(); ++index)
                each.push_back(all->GetRangeValueByIndex(index));
            return each;
        };
        EXPECT_EQ(ranges().size(), 2U);
        product.Set(test::kMedia, test::kFilm);
        EXPECT_EQ(ranges(), row.open);
        product.Set(test::kMedia, test::kPlain);
        EXPECT_EQ(ranges().size(), 2U);
    }
}

TEST(Engine, ForbiddenLengthsAreNotOffered)
{
    const Product product(Disable(R"({ "feature": 100, "is": ["film"] })",
                                  R"("feature": 107, "compare": "greater", "value": 200)"));
    const auto most = [&](bool supported) {
        const auto lengths =
            product.All().GetDimensionFeature(test::kWidth).GetRangeOfDimensionCapabilities();
        Dimension low;
        Dimension high;
        EXPECT_TRUE(supported ? lengths->GetSupportedValues(low, high)
                              : lengths->GetRangeValues(low, high));
        return high;
    };
    const Dimension before = most(false);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_EQ(most(false), Dimension(200, Dimension::UnitsEnum::Millimetre));
    EXPECT_EQ(most(true), before);
}

TEST(Engine, EveryQuestionAboutANumber)
{
    const Shape shapes[] = {
        {R"("is": [1, 5])", 5, true},
        {R"("is": [1, 5])", 6, false},
        {R"("is": [1])", 0, false},
        {R"("isNot": [1, 5])", 6, true},
        {R"("isNot": [1])", 0, true},
        {R"("compare": "less", "value": 5)", 4, true},
        {R"("compare": "less", "value": 5)", 5, false},
        {R"("compare": "lessOrEqual", "value": 5)", 5, true},
        {R"("compare": "greater", "value": 5)", 5, false},
        {R"("compare": "greaterOrEqual", "value": 5)", 5, true},
        {R"("compare": "equal", "value": 5)", 5, true},
        {R"("compare": "notEqual", "value": 5)", 5, false},
        {R"("between": [5, 9])", 5, true},
        {R"("between": [5, 9])", 9, true},
        {R"("between": [5, 9])", 10, false},
        {R"("between": [5, 9])", 0, false},
        {R"("between": [5, 9], "orWithoutValue": true)", 0, true},
        {R"("outside": [5, 9])", 4, true},
        {R"("outside": [5, 9])", 9, false},
        {R"("outside": [5, 9])", 0, false},
    };
    for (const Shape& shape : shapes) {
        SCOPED_TRACE(std::string(shape.condition) + " " + std::to_string(shape.copies));
        const Product product(Disable(R"({ "feature": 103, )" + std::string(shape.condition) + "}",
                                      R"("feature": 102, "options": [6022])"));
        auto copies = product.All().GetIntegerFeature(test::kCopies);
        copies.SetValue(50);
        shape.copies != 0 ? copies.SetValue(shape.copies) : copies.SetIsSpecified(false);
        EXPECT_EQ(product.Set(test::kStaple, test::kOneStaple), !shape.holds);
    }
}

TEST(Engine, LimitsNumbersAndLengths)
{
    const Product product(
        Disable(R"({ "feature": 100, "is": ["film"] })",
                R"("feature": 103, "compare": "greater", "value": 10)") +
        R"(, { "id": "y", "when": [ { "feature": 100, "is": ["film"] } ], "effect": {
            "feature": "odrv-width", "outside": [100, 200], "kind": "hide" }, "reason": 60000 })");
    product.Set(test::kMedia, test::kFilm);
    auto copies = product.All().GetIntegerFeature(test::kCopies);
    EXPECT_FALSE(copies.SetValue(11));
    EXPECT_TRUE(copies.SetValue(10));
    EXPECT_TRUE(product.State(test::kWidth).HasCbrBtnMsg()) << "210 mm lies outside";
    auto width = product.All().GetDimensionFeature(test::kWidth);
    EXPECT_FALSE(width.SetValue(Dimension(201, Dimension::UnitsEnum::Millimetre)));
    EXPECT_TRUE(width.SetValue(Dimension(200, Dimension::UnitsEnum::Millimetre)));
}

constexpr std::string_view kNever = R"({ "id": "n", "never": [
    { "feature": 100, "is": ["film"] }, { "feature": 101, "is": ["two"] },
    { "feature": 103, "compare": "greater", "value": 5 } ], %"reason": 60000 })";

TEST(Engine, InvalidCombinationsLimitWhicheverComesLast)
{
    for (const bool limited : {false, true}) {
        std::string text(kNever);
        text.replace(text.find('%'), 1, limited ? R"("limit": [101], )" : "");
        const Product product(text);
        auto copies = product.All().GetIntegerFeature(test::kCopies);
        product.Set(test::kMedia, test::kFilm);
        EXPECT_TRUE(copies.SetValue(6)) << "two of three";
        EXPECT_FALSE(product.Set(test::kSides, test::kTwoSided));
        copies.SetValue(1);
        EXPECT_TRUE(product.Set(test::kSides, test::kTwoSided));
        EXPECT_EQ(copies.SetValue(6), limited) << "only the sides give way where it says so";
        EXPECT_EQ(product.State(test::kSides).HasCbrBtnMsg(), limited);
    }
}

TEST(Engine, SizesStandForTheOptionsThatHaveThem)
{
    std::string text = test::PackageText(
        Disable(R"({ "feature": 100, "sizeWithin": { "maxWidth": 150, "minHeight": 100 } })",
                R"("feature": 130)"));
    const std::string_view plain = R"("name": "plain" })";
    const std::string_view film = R"("name": "film" })";
    text.replace(text.find(film), film.size(), R"("name": "film", "size": [148.5, 210] })");
    text.replace(text.find(plain), plain.size(), R"("name": "plain", "size": [210, 297] })");
    const Product product(test::Whole{text});
    EXPECT_FALSE(product.State(test::kBooklet).IsDisabled());
    product.Set(test::kMedia, test::kFilm);
    EXPECT_TRUE(product.State(test::kBooklet).IsDisabled());
}

TEST(Engine, DefaultsFollowUntilSomebodyChooses)
{
    std::string text =
        test::PackageText(R"({ "id": "a", "when": [ { "feature": 130, "is": [true] } ],
        "effect": { "feature": "odrv-media", "kind": "clear" }, "reason": 60000 })");
    const std::string_view plain = R"("odrv-copies", "kind": "integer", "default": 1,)";
    text.replace(text.find(plain), plain.size(), std::string(plain) + R"( "defaults": [
        { "when": [ { "feature": "odrv-media", "is": ["film"] } ], "value": 5 },
        { "when": [ { "feature": "odrv-sides", "is": ["two"] } ], "value": 7 } ],)");
    const Product product(test::Whole{text});
    auto copies = product.All().GetIntegerFeature(test::kCopies);
    auto booklet = product.All().GetBooleanFeature(test::kBooklet);
    test::Recorder recorder;
    const SettingsInstanceId all(DataModelIds::kSettingsCurrent);
    product.model->RegisterObserver(recorder, all, test::kCopies, DataModelIds::kObserverFeature);
    const auto copiesAre = [&](int value) {
        int initial = 0;
        EXPECT_TRUE(copies.GetDefaultValue(initial, FeatureRef::kAssertIfUnsupported));
        return product.Number(test::kCopies) == value && initial == value;
    };
    product.Set(test::kMedia, test::kFilm);
    EXPECT_TRUE(copiesAre(5));
    EXPECT_EQ(recorder.bundles.size(), 1U) << "observers learn of it";
    product.Set(test::kSides, test::kTwoSided);
    EXPECT_TRUE(copiesAre(5)) << "the first row that holds";
    booklet.SetValue(true);
    EXPECT_TRUE(copiesAre(7)) << "what is cleared holds no row";
    {
        const auto transaction = product.model->OpenTransaction();
        booklet.SetValue(false);
        copies.SetValue(9);
        product.Set(test::kMedia, test::kPlain);
    }
    EXPECT_TRUE(copiesAre(7)) << "rolled back, and following again";
    booklet.SetValue(false);
    EXPECT_TRUE(copiesAre(5));

    // What follows is saved nowhere, what was chosen is.
    std::vector<std::uint8_t> block;
    product.model->CommitAccepted();
    EXPECT_TRUE(product.model->ExportSettings(block));
    const Product again(test::Whole{text});
    EXPECT_TRUE(again.model->ImportSettings(block.data(), block.size()));
    EXPECT_EQ(again.Number(test::kCopies), 5);
    again.Set(test::kMedia, test::kPlain);
    EXPECT_EQ(again.Number(test::kCopies), 7);
    copies.SetValue(1);
    product.model->CommitAccepted();
    EXPECT_TRUE(product.model->ExportSettings(block));
    EXPECT_TRUE(again.model->ImportSettings(block.data(), block.size()));
    EXPECT_EQ(again.Number(test::kCopies), 1) << "chosen, though it is the plain default";
    EXPECT_TRUE(copies.RestoreToDefaultValue());
    EXPECT_TRUE(copiesAre(5));
    product.model->UnregisterObserver(recorder, all, test::kCopies, DataModelIds::kObserverFeature);
}

TEST(Engine, TheOrderOfLoadingChangesNothing)
{
    // A chain of clearing, two reasons for one thing, and a pair that is given both ways.
    std::vector<std::string> constraints = {
        R"({ "id": "c1", "when": [ { "feature": 100, "is": ["film"] } ],
            "effect": { "feature": 130, "kind": "clear" }, "reason": 60000 })",
        R"({ "id": "c2", "when": [ { "feature": 130, "isNot": [true] } ],
            "effect": { "feature": 104, "kind": "clear" }, "reason": 60000 })",
        R"({ "id": "c3", "when": [ { "feature": 104, "is": [true] } ],
            "effect": { "feature": 102, "options": [6022], "kind": "disable" }, "reason": 60001 })",
        R"({ "id": "c4", "when": [ { "feature": 104, "isNot": [true] } ],
            "effect": { "feature": 102, "options": [6022], "kind": "info" }, "reason": 60000 })",
        R"({ "id": "c5", "when": [ { "feature": 100, "is": ["film"] } ],
            "effect": { "feature": 102, "options": [6022], "kind": "disable" }, "reason": 60000 })",
        R"({ "id": "c6", "never": [ { "feature": 101, "is": ["two"] },
            { "feature": 103, "between": [2, 9] } ], "reason": 60001 })",
    };
    std::mt19937 engine(7);
    std::string expected;
    for (int order = 0; order < 24; ++order) {
        std::string joined;
        for (const std::string& constraint : constraints)
            joined += (joined.empty() ? "" : ",") + constraint;
        const Product product(joined);
        std::string states;
        for (const int step : {0, 1, 2, 3}) {
            if (step == 1)
                product.Set(test::kMedia, test::kFilm);
            else if (step == 2)
                product.All().GetBooleanFeature(test::kBooklet).SetValue(true);
            else if (step == 3)
                product.All().GetIntegerFeature(test::kCopies).SetValue(3);
            for (const auto feature :
                 {test::kBooklet, test::kCollate, test::kStaple, test::kSides}) {
                const InterpretedState state = product.State(feature);
                states += Letters(state) + test::Narrow(state.GetInfoBtnMsg()) + "|" +
                          test::Narrow(state.GetReason()) + ";";
            }
        }
        if (order == 0)
            expected = states;
        EXPECT_EQ(states, expected) << joined;
        std::shuffle(constraints.begin(), constraints.end(), engine);
    }
}

TEST(Engine, ConstraintsOfCodeHaveEveryEffectAndNoCircle)
{
    const Product product;
    auto& integrator = product.model->GetConstraintsIntegrator();
    const Condition booklet(test::kBooklet, DataModelIds::kInclude, ValSet{true});
    const Condition collate(test::kCollate, DataModelIds::kInclude, ValSet{true});
    const Condition allOfCollate(test::kCollate, DataModelIds::kExclude, ValSet{});
    const Condition allOfBooklet(test::kBooklet, DataModelIds::kExclude, ValSet{});
    const ConstraintMkIIOptions clear{60000, o7::EffectKind::Clear};
    EXPECT_FALSE(integrator.AddConstraint(ConstraintMkII(
        booklet, Condition(test::kCollate, DataModelIds::kInclude, ValSet{}), clear)));
    EXPECT_TRUE(integrator.AddConstraint(ConstraintMkII(booklet, allOfCollate, clear)));
    EXPECT_FALSE(integrator.AddConstraint(ConstraintMkII(collate, allOfBooklet, clear)))
        << "it would go round";
    EXPECT_TRUE(integrator.AddConstraint(
        ConstraintMkII(collate, allOfBooklet, {60000, o7::EffectKind::Info})));
    EXPECT_TRUE(integrator.AddConstraint(
        ConstraintMkII(Condition(test::kCopies, DataModelIds::kBetween, ValSet{5, 9}),
                       Condition(test::kMedia, DataModelIds::kInclude, ValSet{test::kFilm}),
                       {60000, o7::EffectKind::Hide})));
    EXPECT_EQ(Letters(product.State(test::kBooklet)), "i");
    product.All().GetBooleanFeature(test::kBooklet).SetValue(true);
    EXPECT_EQ(Letters(product.State(test::kCollate)), "dci");
    EXPECT_EQ(Letters(product.State(test::kBooklet)), "") << "collate has no value any more";
    product.All().GetIntegerFeature(test::kCopies).SetValue(7);
    EXPECT_EQ(Letters(product.OptionState(test::kMedia, 1)), "h");
}

TEST(Engine, TheUnspecifiedEntryHasAStateOfItsOwn)
{
    const Product product(
        Disable(R"({ "feature": 100, "is": ["film"] })", R"("feature": 102, "options": [5001])"));
    const auto unspecified = [&] {
        return product.All()
            .GetFeature(test::kStaple)
            ->GetCapabilities()
            ->GetUnspecifiedInterpretedState();
    };
    EXPECT_FALSE(unspecified().IsDisabled());
    product.Set(test::kStaple, test::kOneStaple);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_TRUE(unspecified().IsDisabled());
    EXPECT_EQ(unspecified().GetReason(), L"Stapling not with Media");
    EXPECT_FALSE(product.All().GetOptionFeature(test::kStaple).SetIsSpecified(false));
}

const o7::Alternative* Find(const o7::ChangeProposal& proposal, o7::AlternativeKind kind)
{
    for (const o7::Alternative& alternative : proposal.alternatives) {
        if (alternative.kind == kind)
            return &alternative;
    }
    return nullptr;
}

std::string TextOf(const o7::FeatureValue& value)
{
    if (const auto* option = std::get_if<ValueId>(&value))
        return test::Narrow(option->GetDisplayString());
    if (const auto* flag = std::get_if<bool>(&value))
        return *flag ? "on" : "off";
    const auto* number = std::get_if<int>(&value);
    return number != nullptr ? std::to_string(*number) : "-";
}

std::string TextOf(const o7::Alternative* alternative)
{
    if (alternative == nullptr)
        return "none";
    std::string text;
    for (const o7::SettingChange& change : alternative->changes)
        text += (text.empty() ? "" : ", ") + test::Narrow(change.feature.Dump(false)) + " " +
                TextOf(change.before) + " > " + TextOf(change.after);
    return text;
}

constexpr std::string_view kClashing = R"(
  { "id": "a", "when": [ { "feature": 100, "is": ["film"] }, { "feature": 130, "is": [false] } ],
    "effect": { "feature": 101, "options": ["two"], "kind": "disable" }, "reason": 60000 },
  { "id": "b", "when": [ { "feature": 101, "is": ["one"] } ],
    "effect": { "feature": 102, "kind": "clear" }, "reason": 60000 })";

TEST(Proposals, OfferToKeepTheNewTheOldOrAnotherWay)
{
    const Product product(kClashing);
    product.Set(test::kSides, test::kTwoSided);
    test::Recorder recorder;
    const SettingsInstanceId all(DataModelIds::kSettingsCurrent);
    product.model->RegisterObserver(recorder, all, FeatureIdWithContext(),
                                    DataModelIds::kObserverFeature);
    const auto proposal = product.model->ProposeChange(test::kMedia, ValueId(test::kFilm));
    EXPECT_TRUE(proposal.possible);
    ASSERT_EQ(proposal.conflicts.size(), 1U);
    EXPECT_EQ(proposal.conflicts[0].sentence, L"Sides not with Media");
    EXPECT_EQ(proposal.conflicts[0].limited, FeatureIdWithContext(test::kSides));
    EXPECT_EQ(TextOf(Find(proposal, o7::AlternativeKind::KeepNew)),
              "odrv-media Plain > Film, odrv-sides 2-sided > 1-sided");
    EXPECT_EQ(TextOf(Find(proposal, o7::AlternativeKind::KeepOld)), "");
    EXPECT_EQ(TextOf(Find(proposal, o7::AlternativeKind::SmallestOther)),
              "odrv-media Plain > Film, odrv-booklet off > on");
    EXPECT_TRUE(product.model->GetFeaturesInConflict().empty());

    // The whole list of consequences: what is changed, and what that does to others.
    const auto consequences = product.model->PreviewAlternative(proposal.alternatives[0]);
    ASSERT_EQ(consequences.size(), 3U);
    EXPECT_EQ(consequences[2].feature, FeatureIdWithContext(test::kStaple));
    EXPECT_EQ(Letters(consequences[2].stateBefore) + ">" + Letters(consequences[2].stateAfter),
              ">dci");
    EXPECT_EQ(product.Get(test::kMedia), test::kPlain);
    EXPECT_TRUE(recorder.bundles.empty()) << "nobody was told of what was only tried";

    EXPECT_TRUE(product.model->ApplyAlternative(proposal.alternatives[0]));
    EXPECT_EQ(recorder.bundles.size(), 1U) << "one transaction";
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);
    EXPECT_TRUE(product.model->GetFeaturesInConflict().empty());
    product.model->UnregisterObserver(recorder, all, FeatureIdWithContext(),
                                      DataModelIds::kObserverFeature);
}

TEST(Proposals, OfAValueThatIsForbidden)
{
    const Product product(kClashing);
    product.Set(test::kMedia, test::kFilm);
    const auto proposal = product.model->ProposeChange(test::kSides, ValueId(test::kTwoSided));
    EXPECT_EQ(proposal.conflicts.size(), 1U);
    EXPECT_EQ(TextOf(Find(proposal, o7::AlternativeKind::KeepNew)),
              "odrv-sides 1-sided > 2-sided, odrv-media Film > Plain");
    // What clashes already does not count, and can be gone to.
    product.All().GetBooleanFeature(test::kBooklet).SetValue(true);
    product.Set(test::kSides, test::kTwoSided);
    product.All().GetBooleanFeature(test::kBooklet).SetValue(false);
    EXPECT_EQ(product.model->GetFeaturesInConflict(),
              std::vector<FeatureIdWithContext>{test::kSides});
    EXPECT_TRUE(product.model->ProposeChange(test::kCopies, 5).conflicts.empty());
}

TEST(Proposals, OfWhatCannotBe)
{
    const Product product;
    const auto impossible = [&](DataModelIds::tagFeatureEnum feature,
                                const o7::FeatureValue& value) {
        const auto proposal = product.model->ProposeChange(feature, value);
        return !proposal.possible && proposal.alternatives.empty();
    };
    EXPECT_TRUE(impossible(test::kAbsent, 1));
    EXPECT_TRUE(impossible(test::kCopies, 150)) << "between two ranges";
    EXPECT_TRUE(impossible(test::kCopies, true)) << "of another kind";
    EXPECT_TRUE(impossible(test::kModel, CXString(L"T2"))) << "read-only";
    EXPECT_TRUE(impossible(test::kSides, {})) << "required";
    EXPECT_FALSE(impossible(test::kStaple, {}));
    o7::Alternative stale{o7::AlternativeKind::KeepNew,
                          {{test::kCopies, 1, 5}, {test::kCopies, 1, 0}}};
    EXPECT_FALSE(product.model->ApplyAlternative(stale));
    EXPECT_EQ(product.Number(test::kCopies), 1) << "all or nothing";
}

/// One constraint too many or too much, and what the analysis says of it.
struct Mistake
{
    std::string_view constraints;
    o7::PackageFindingKind kind;
    const char* says; ///< Null: nothing is wrong.
};

TEST(Analysis, FindsWhatCannotBeMeant)
{
    using Kind = o7::PackageFindingKind;
    const Mistake mistakes[] = {
        {R"({ "id": "a", "when": [ { "feature": 100, "is": ["film"] } ],
            "effect": { "feature": 101, "options": ["two"], "kind": "disable" }, "reason": 60000 })",
         Kind::Circle, nullptr},
        {R"({ "id": "a", "when": [ { "feature": 100, "is": ["film"] } ],
            "effect": { "feature": 101, "options": ["two"], "kind": "disable" }, "reason": 60000 },
            { "id": "b", "when": [ { "feature": 100, "isNot": ["film"] } ],
            "effect": { "feature": 101, "options": ["two"], "kind": "hide" }, "reason": 60000 })",
         Kind::UnreachableOption,
         "odrv-sides: the value two can never be chosen; forbidden by a, b"},
        {R"({ "id": "a", "when": [ { "feature": 103, "compare": "less", "value": 5 },
            { "feature": 103, "compare": "greater", "value": 4 } ],
            "effect": { "feature": 101, "kind": "info" }, "reason": 60000 })",
         Kind::NeverHolds, "a: its conditions can never hold together"},
        {R"({ "id": "a", "when": [ { "feature": 100, "is": ["film"] } ],
            "effect": { "feature": 101, "options": ["two"], "kind": "disable" }, "reason": 60000 },
            { "id": "b", "when": [ { "feature": 100, "is": ["film"] } ],
            "effect": { "feature": 101, "options": ["one"], "kind": "disable" }, "reason": 60000 })",
         Kind::Contradiction, "a, b: with odrv-media film no value of odrv-sides can be chosen"},
        {R"({ "id": "a", "when": [ { "feature": 104, "is": [false] } ],
            "effect": { "feature": 130, "kind": "disable" }, "reason": 60000 },
            { "id": "b", "when": [ { "feature": 130, "is": [true] } ],
            "effect": { "feature": 104, "kind": "disable" }, "reason": 60000 })",
         Kind::Circle, "a -> b -> a"},
        {R"({ "id": "a", "when": [ { "feature": 104, "is": [false] }, { "feature": 100, "is": ["film"] } ],
            "effect": { "feature": 130, "kind": "disable" }, "reason": 60000 },
            { "id": "b", "when": [ { "feature": 100, "isNot": ["plain"] },
            { "feature": 104, "isNot": [true] } ],
            "effect": { "feature": 130, "kind": "disable" }, "reason": 60001 })",
         Kind::Duplicate, "b says the same as a"},
        {R"({ "id": "a", "when": [ { "feature": 100, "is": ["plain"] } ],
            "effect": { "feature": 101, "options": ["one"], "kind": "disable" }, "reason": 60000 })",
         Kind::DefaultConflict, "a is broken by the defaults: odrv-sides starts as one"},
    };
    for (const Mistake& mistake : mistakes) {
        SCOPED_TRACE(mistake.constraints);
        std::vector<o7::PackageError> errors;
        const auto package =
            o7::ParseProductPackage(test::PackageText(mistake.constraints), "p", errors);
        ASSERT_TRUE(package) << errors.front().ToString();
        const auto findings = o7::AnalyseProductPackage(*package);
        ASSERT_EQ(findings.empty(), mistake.says == nullptr)
            << (findings.empty() ? "" : findings.front().message);
        if (mistake.says == nullptr)
            continue;
        const auto found =
            std::find_if(findings.begin(), findings.end(), [&](const o7::PackageFinding& finding) {
                return finding.kind == mistake.kind;
            });
        ASSERT_NE(found, findings.end()) << findings.front().message;
        EXPECT_NE(found->message.find(mistake.says), std::string::npos) << found->message;
        EXPECT_NE(found->line, 0U);
    }
}

} // namespace
