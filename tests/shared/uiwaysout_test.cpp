// The ways out that are offered: against a small model for the rules, and against every product for
// the promise that a way does exactly what it says.

#include "products.h"
#include "testproduct.h"
#include "uiwaysout.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using test::Product;
using Lines = std::vector<std::string>;

/// Texts of the small product, with those of the ways in English.
class Texts : public test::Strings
{
public:
    CXString LoadStringW(unsigned id) const override
    {
        const auto found = m_ways.find(id);
        return found != m_ways.end() ? CXString::FromUtf8(found->second)
                                     : test::Strings::LoadStringW(id);
    }

private:
    o7::StringTable m_ways = o7::productStrings("office-c430", "en");
};

/// A rule of the small product: while the condition holds, the effect is there.
std::string rule(const std::string& when, const std::string& effect)
{
    static int s_number = 0;
    return R"({ "id": "rule-)" + std::to_string(++s_number) + R"(", "when": [)" + when +
           R"(], "effect": {)" + effect + R"(}, "reason": 60000 })";
}

const std::string kFilm = R"({ "feature": 100, "is": ["film"] })";
const std::string kBookletOn = R"({ "feature": 130, "is": [true] })";
const std::string kNoTwoSided = R"("feature": 101, "options": ["two"], "kind": "disable")";
const std::string kNoStapling = R"("feature": 102, "options": ["one"], "kind": "disable")";
const std::string kNoCollation = R"("feature": 104, "kind": "clear")";

struct Case
{
    const char* name;
    std::string rules;
    void (*choose)(const Product&);
    FeatureIdWithContext feature;
    Lines ways;
};

Lines sentences(const std::vector<o7::WayOut>& ways)
{
    Lines all;
    for (const o7::WayOut& way : ways)
        all.push_back(way.sentence.ToUtf8());
    return all;
}

class WaysOut : public testing::Test
{
protected:
    UIWaysOut waysOf(const Product& product) const
    {
        return UIWaysOut(*product.model, m_texts, {});
    }
    Texts m_texts;
};

bool setBooklet(const Product& product, bool on)
{
    return product.All().GetBooleanFeature(test::kBooklet).SetValue(on);
}

TEST_F(WaysOut, AreVerbsWithTheirConsequences)
{
    const Case kCases[] = {
        {"free",
         rule(kFilm, kNoTwoSided),
         [](const Product& product) { product.Set(test::kSides, test::kTwoSided); },
         test::kSides,
         {}},
        {"cause and own choice",
         rule(kFilm, kNoTwoSided),
         [](const Product& product) {
             product.Set(test::kSides, test::kTwoSided);
             product.Set(test::kMedia, test::kFilm);
         },
         test::kSides,
         {"Set Sides to 1-sided", "Set Media to Plain"}},
        {"a switch",
         rule(kBookletOn, kNoStapling),
         [](const Product& product) {
             product.Set(test::kStaple, test::kOneStaple);
             setBooklet(product, true);
         },
         test::kStaple,
         {"Leave Stapling empty", "Set Stapling to No staple", "Turn Booklet off"}},
        {"kept from being chosen",
         rule(R"({ "feature": 130, "is": [false] })", kNoCollation),
         [](const Product&) {},
         test::kCollate,
         {"Turn Booklet on"}},
        {"what brings another conflict takes along what gives way",
         rule(R"({ "feature": 130, "is": [false] })", kNoCollation) + "," +
             rule(kBookletOn, R"("feature": 101, "options": ["one"], "kind": "disable")"),
         [](const Product&) {},
         test::kCollate,
         {"Turn Booklet on; Sides becomes 2-sided"}},
        {"what cannot be mended is not offered",
         rule(R"({ "feature": 130, "is": [false] })", kNoCollation) + "," +
             rule(kBookletOn, R"("feature": 130, "kind": "conflict")"),
         [](const Product&) {},
         test::kCollate,
         {}},
        {"two reasons at once",
         rule(kFilm, kNoCollation) + "," + rule(kBookletOn, kNoCollation),
         [](const Product& product) {
             product.Set(test::kMedia, test::kFilm);
             setBooklet(product, true);
         },
         test::kCollate,
         {"Set Media to Plain; Booklet is turned off"}},
        {"what a person chose and loses",
         rule(R"({ "feature": 130, "is": [false] })", kNoCollation) + "," +
             rule(kBookletOn, R"("feature": 103, "kind": "clear")"),
         [](const Product& product) { product.All().GetIntegerFeature(test::kCopies).SetValue(7); },
         test::kCollate,
         {"Turn Booklet on; Copies no longer applies"}},
    };
    for (const Case& one : kCases) {
        SCOPED_TRACE(one.name);
        const Product product(one.rules);
        one.choose(product);
        EXPECT_EQ(sentences(waysOf(product).of(one.feature)), one.ways);
    }
}

/// Numbers in ranges, lengths in the person's unit, and nothing of what somebody typed.
TEST_F(WaysOut, WriteValuesAsThePersonDoes)
{
    const Product product;
    const UIWayTexts metric(*product.model, m_texts, {L',', true});
    const UIWayTexts inch(*product.model, m_texts, {L'.', false});
    const Dimension width(215.9, Dimension::UnitsEnum::Millimetre);
    EXPECT_EQ(metric.verb({test::kCopies, {}, 12}).ToUtf8(), "Set Copies to 12");
    EXPECT_EQ(metric.verb({test::kWidth, {}, width}).ToUtf8(), "Set #20107 to 215,9 mm");
    EXPECT_EQ(inch.verb({test::kWidth, {}, width}).ToUtf8(), "Set #20107 to 8.5 in");
    EXPECT_EQ(metric.verb({test::kPages, {}, RangeOfInteger(2, 5)}).ToUtf8(), "Set #20106 to 2–5");
    EXPECT_EQ(metric.verb({test::kName, {}, CXString(L"4711")}).ToUtf8(), "Change #20105");
}

TEST_F(WaysOut, OfAGreyEntryChooseIt)
{
    const Product product(rule(kFilm, kNoTwoSided));
    product.Set(test::kMedia, test::kFilm);
    const auto ways = waysOf(product).toEntry(test::kSides, ValueId(test::kTwoSided));
    ASSERT_EQ(sentences(ways), Lines{"Set Sides to 2-sided; Media becomes Plain"});
    EXPECT_TRUE(waysOf(product).carryOut(ways.front().alternative));
    EXPECT_EQ(product.Get(test::kSides), test::kTwoSided);
    EXPECT_EQ(product.Get(test::kMedia), test::kPlain);
}

/// One bundle for all of it, and the accepted settings come back with Cancel.
TEST_F(WaysOut, AreOneChange)
{
    const Product product(
        rule(R"({ "feature": 130, "is": [false] })", kNoCollation) + "," +
        rule(kBookletOn, R"("feature": 101, "options": ["one"], "kind": "disable")"));
    const auto ways = waysOf(product).of(test::kCollate);
    ASSERT_EQ(ways.size(), 1U);
    EXPECT_FALSE(product.model->IsModified()) << "looking changes nothing";
    test::Recorder recorder;
    product.model->RegisterObserver(recorder, SettingsInstanceId(DataModelIds::kSettingsValue), {},
                                    DataModelIds::kObserverFeature);
    EXPECT_TRUE(waysOf(product).carryOut(ways.front().alternative));
    EXPECT_EQ(recorder.bundles, Lines{"odrv-booklet value, odrv-sides value"});
    EXPECT_TRUE(product.model->IsModified());
    product.model->RevertToAccepted();
    EXPECT_EQ(product.Get(test::kSides), test::kOneSided);
    product.model->UnregisterObserver(recorder, SettingsInstanceId(DataModelIds::kSettingsValue),
                                      {}, DataModelIds::kObserverFeature);
}

TEST_F(WaysOut, SettleAllConflictsTogether)
{
    const Product product(
        rule(kFilm, kNoTwoSided) + "," + rule(kFilm, kNoStapling) + "," +
        rule(kBookletOn, R"("feature": 130, "kind": "conflict")") + "," +
        rule(kBookletOn, R"("feature": 103, "compare": "greater", "value": 5, "kind": "disable")"));
    product.Set(test::kSides, test::kTwoSided);
    product.Set(test::kStaple, test::kOneStaple);
    product.All().GetIntegerFeature(test::kCopies).SetValue(7);
    product.Set(test::kMedia, test::kFilm);
    setBooklet(product, true);
    const auto conflicts = product.model->GetFeaturesInConflict();
    ASSERT_EQ(conflicts.size(), 4U);
    const o7::Settlement plan = waysOf(product).settle(conflicts);
    Lines lines;
    for (const CXString& line : plan.lines)
        lines.push_back(line.ToUtf8());
    // Another paper settles both of its conflicts.
    EXPECT_EQ(lines, (Lines{"Set Media to Plain", "Turn Booklet off"}));
    EXPECT_TRUE(plan.left.empty());
    EXPECT_TRUE(waysOf(product).carryOut(plan.alternative));
    EXPECT_TRUE(product.model->GetFeaturesInConflict().empty());
}

/// Every value of every top-level feature.
std::map<std::string, o7::FeatureValue> valuesOf(const IDataModel& model)
{
    std::map<std::string, o7::FeatureValue> values;
    const auto node = const_cast<IDataModel&>(model).GetFullListOfFeatures().GetNode();
    for (std::size_t index = 0; index < node->GetNumChildren(); ++index) {
        const auto child = node->GetChild(index);
        o7::FeatureValue value;
        child->GetValue(value);
        values[child->GetId().Dump(false).ToUtf8()] = value;
    }
    return values;
}

/// A product of this tree, in the state that a walk of random changes has led to.
class Walk
{
public:
    Walk(const std::string& name, const std::string& language)
        : m_strings(o7::productStrings(name, language))
    {
        std::vector<o7::PackageError> errors;
        m_package = o7::LoadProductPackage(o7::productFolder(name), errors);
        m_model = o7::CreateDataModel(*m_package, m_strings);
    }
    IDataModel& model() { return *m_model; }
    UIWaysOut ways() { return UIWaysOut(*m_model, m_strings, {}); }

    /// Gives a setting another value; the same number always leads the same way.
    void step(unsigned number)
    {
        const auto node = m_model->GetFullListOfFeatures().GetNode();
        const auto child = node->GetChild(number % node->GetNumChildren());
        o7::FeatureValue value;
        if (child->GetKind() == o7::FeatureKind::Boolean && child->GetValue(value))
            child->SetValue(!std::get<bool>(value));
        if (child->GetKind() != o7::FeatureKind::Option)
            return;
        const auto capabilities = child->GetCapabilities();
        const auto& options = dynamic_cast<const OptionCapability&>(*capabilities);
        if (options.GetNumberOfValues() > 0)
            child->SetValue(
                options.GetOptionWithState(number / 7 % options.GetNumberOfValues()).GetValueId());
    }

private:
    o7::StringTableSource m_strings;
    std::unique_ptr<o7::ProductPackage> m_package;
    std::unique_ptr<IDataModel> m_model;
};

/// What is offered helps when it is carried out, breaks nothing else, is worded, and tells of every
/// value that really changes.
void checkWaysOf(Walk& walk, const FeatureIdWithContext& feature, int& carriedOut)
{
    IDataModel& model = walk.model();
    const auto state = [&] {
        return model.GetFeatureRef(feature)->GetCapabilities()->GetInterpretedState();
    };
    const bool wasInConflict = state().HasCbrBtnMsg();
    const auto conflictsBefore = model.GetFeaturesInConflict().size();
    const auto before = valuesOf(model);
    for (const o7::WayOut& way : walk.ways().of(feature)) {
        SCOPED_TRACE(way.sentence.ToUtf8());
        EXPECT_EQ(way.sentence.ToUtf8().find_first_of("{}#"), std::string::npos);
        const auto foretold = model.PreviewAlternative(way.alternative);
        EXPECT_EQ(valuesOf(model), before);
        const auto transaction = model.OpenTransaction(CXString(L"a way"));
        EXPECT_TRUE(walk.ways().carryOut(way.alternative));
        ++carriedOut;
        if (wasInConflict)
            EXPECT_FALSE(state().HasCbrBtnMsg());
        else
            EXPECT_FALSE(state().IsDisabled() || state().IsCleared() || state().IsHidden());
        EXPECT_LE(model.GetFeaturesInConflict().size(), conflictsBefore);
        auto after = before;
        for (const o7::Consequence& consequence : foretold)
            after[consequence.feature.Dump(false).ToUtf8()] = consequence.after;
        for (const auto& [name, value] : valuesOf(model))
            EXPECT_EQ(after[name], value) << name << " changes and was not told";
        transaction->Close(false);
    }
}

TEST(WaysOfTheProducts, DoWhatTheySay)
{
    for (const auto& product : o7::kProducts) {
        SCOPED_TRACE(product.name);
        Walk walk(product.name, "en");
        int carriedOut = 0;
        unsigned number = 20251;
        for (int step = 0; step < 60; ++step) {
            number = number * 1103515245U + 12345U;
            walk.step(number >> 8);
            const auto node = walk.model().GetFullListOfFeatures().GetNode();
            const auto some = node->GetChild((number >> 12) % node->GetNumChildren())->GetId();
            checkWaysOf(walk, some, carriedOut);
            for (const FeatureIdWithContext& feature : walk.model().GetFeaturesInConflict())
                checkWaysOf(walk, feature, carriedOut);
        }
        EXPECT_GT(carriedOut, 5);
    }
}

/// The journeys that people ask about, in every language: worded, and to the point.
TEST(WaysOfTheProducts, AreOfferedWhereThePersonLooksForThem)
{
    constexpr auto kBooklet = static_cast<DataModelIds::tagFeatureEnum>(3018);
    constexpr auto kPageBorders = static_cast<DataModelIds::tagFeatureEnum>(3017);
    constexpr auto kCustomWidth = static_cast<DataModelIds::tagFeatureEnum>(3103);
    constexpr auto kStaple = static_cast<DataModelIds::tagFeatureEnum>(3012);
    for (const char* language : o7::kLanguages) {
        SCOPED_TRACE(language);
        Walk walk("office-c430", language);
        EXPECT_EQ(walk.ways().of(kPageBorders).size(), 2U) << "pages per sheet: the first few";
        EXPECT_EQ(walk.ways().of(kCustomWidth).size(), 1U);
        EXPECT_TRUE(walk.ways().of(kBooklet).empty());
        // No finisher: that is chosen where the printer is set up.
        auto finisher = walk.model().GetOptionFeatureRef(
            FeatureIdWithContext(static_cast<DataModelIds::tagFeatureEnum>(3040)));
        finisher.SetValue(CXString(L"none"));
        EXPECT_TRUE(walk.ways().of(kStaple).empty());
    }
}

} // namespace
