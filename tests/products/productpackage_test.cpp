// The office colour device as a whole: its package loads, every text exists in every language, and
// its constraints limit what a person would expect, each with a sentence that says why.

#include "datamodelfactory.h"
#include "officec430.h"
#include "optioncapability.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

namespace {

using o7::FeatureKind;
using o7::StringTable;

std::unique_ptr<o7::ProductPackage> loadPackage()
{
    std::vector<o7::PackageError> errors;
    auto package = o7::LoadProductPackage(o7::officeC430Folder(), errors);
    for (const auto& error : errors)
        ADD_FAILURE() << error.ToString();
    return package;
}

FeatureIdWithContext featureId(int number)
{
    return FeatureIdWithContext(static_cast<DataModelIds::tagFeatureEnum>(number));
}

ValueId valueId(int number)
{
    return ValueId(static_cast<DataModelIds::tagValueEnum>(number));
}

/// Features that pages show: 3001 and up. The numbers in these tests are those of package.json.
constexpr int kFirstFeature = 3001;
constexpr int kLastFeature = 3047;

class OfficeC430 : public testing::Test
{
protected:
    void SetUp() override
    {
        m_package = loadPackage();
        ASSERT_TRUE(m_package);
        useLanguage("en");
    }

    void useLanguage(const std::string& language)
    {
        m_model.reset();
        m_strings = std::make_unique<o7::StringTableSource>(o7::officeC430Strings(language));
        m_model = o7::CreateDataModel(*m_package, *m_strings);
    }

    bool set(int feature, int value)
    {
        const auto list = m_model->GetFullListOfFeatures();
        const auto id = featureId(feature);
        switch (m_model->GetFeatureRef(id)->GetKind()) {
        case FeatureKind::Option:
            return list.GetOptionFeature(id).SetValue(valueId(value));
        case FeatureKind::Boolean:
            return list.GetBooleanFeature(id).SetValue(value != 0);
        case FeatureKind::Integer:
            return list.GetIntegerFeature(id).SetValue(value);
        default:
            return false;
        }
    }

    InterpretedState state(int feature)
    {
        return m_model->GetFeatureRef(featureId(feature))->GetCapabilities()->GetInterpretedState();
    }

    std::vector<OptionWithState> options(int feature)
    {
        const auto all = m_model->GetOptionFeatureRef(featureId(feature)).GetOptionCapabilities();
        std::vector<OptionWithState> result;
        for (std::size_t i = 0; i < all->GetNumberOfValues(); ++i)
            result.push_back(all->GetOptionWithState(i));
        return result;
    }

    InterpretedState optionState(int feature, int value)
    {
        for (const auto& option : options(feature))
            if (option.GetValueId() == valueId(value))
                return option.GetInterpretedState();
        ADD_FAILURE() << "no option " << value << " in " << feature;
        return {};
    }

    void expectAllExplained(const std::string& after);

    std::unique_ptr<o7::ProductPackage> m_package;
    std::unique_ptr<o7::StringTableSource> m_strings;
    std::unique_ptr<IDataModel> m_model;
};

std::set<std::string> placeholders(const std::string& text)
{
    static const std::regex kPlaceholder(R"(\{\d\})");
    std::set<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), kPlaceholder), end; at != end; ++at)
        found.insert(at->str());
    return found;
}

TEST_F(OfficeC430, IsOneWholeProduct)
{
    EXPECT_GE(m_package->GetFeatureCount(), 45U);
    EXPECT_GE(m_package->GetConstraintCount(), 40U);
    const ProductInfo& info = m_package->GetProductInfo();
    EXPECT_EQ(info.id.ToUtf8(), "office-c430");
    std::vector<std::string> languages;
    for (const auto& language : info.languages)
        languages.push_back(language.ToUtf8());
    EXPECT_THAT(languages, testing::UnorderedElementsAreArray(o7::kLanguages));
}

TEST_F(OfficeC430, HasEveryTextItNeedsAndNoReasonWithoutUse)
{
    const auto needed = m_package->GetStringNumbers();
    const std::set<unsigned> neededSet(needed.begin(), needed.end());
    const StringTable strings = o7::officeC430Strings("en");
    for (const unsigned number : needed)
        EXPECT_TRUE(strings.count(number)) << "missing: " << number;
    for (const unsigned number : {1357U, 1358U, 11014U, 11015U, 35000U, 35001U, 35002U})
        EXPECT_TRUE(strings.count(number)) << "missing: " << number;
    for (auto at = strings.lower_bound(60000); at != strings.lower_bound(60600); ++at)
        EXPECT_TRUE(neededSet.count(at->first)) << "never used: " << at->first;
}

/// The names of settings that some product has; what this one needs is looked at by itself.
bool isSharedName(unsigned number)
{
    return (number > 20000 && number < 30000) || (number > 45000 && number < 61000);
}

TEST_F(OfficeC430, SaysTheSameInEveryLanguage)
{
    const StringTable english = o7::officeC430Strings("en");
    const auto needed = m_package->GetStringNumbers();
    for (const char* language : o7::kLanguages) {
        const StringTable other = o7::officeC430Strings(language);
        for (const auto& [number, text] : english) {
            if (isSharedName(number) && !std::ranges::binary_search(needed, number))
                continue;
            SCOPED_TRACE(std::string(language) + " " + std::to_string(number));
            const auto found = other.find(number);
            ASSERT_NE(found, other.end());
            EXPECT_NE(found->second, "");
            EXPECT_EQ(placeholders(found->second), placeholders(text));
            EXPECT_EQ(o7::mnemonicOf(found->second).empty(), o7::mnemonicOf(text).empty());
        }
        for (const auto& [number, text] : other)
            EXPECT_TRUE(english.count(number)) << language << " alone has " << number << text;
    }
}

TEST_F(OfficeC430, OpensWithAlmostEverythingToChooseFrom)
{
    std::set<int> disabled;
    std::set<int> noted;
    for (int feature = kFirstFeature; feature <= kLastFeature; ++feature) {
        const auto now = state(feature);
        if (now.IsDisabled() || now.IsCleared())
            disabled.insert(feature);
        else if (now.HasInfoBtnMsg())
            noted.insert(feature);
        EXPECT_FALSE(now.IsHidden()) << feature;
        EXPECT_FALSE(now.HasCbrBtnMsg()) << feature;
    }
    // No folding unit, one page on a sheet, no watermark, no covers.
    EXPECT_THAT(disabled, testing::ElementsAre(3014, 3017, 3024, 3026));
    // No booklet finisher: no saddle stitch, no booklet tray.
    EXPECT_THAT(noted, testing::ElementsAre(3012, 3015));
}

void OfficeC430::expectAllExplained(const std::string& after)
{
    const auto check = [&](const InterpretedState& now, const std::string& where) {
        const bool limited = now.IsDisabled() || now.IsCleared() || now.IsHidden();
        EXPECT_EQ(limited, !now.GetReason().IsEmpty()) << after << ": " << where;
        for (const auto& text : {now.GetReason(), now.GetInfoBtnMsg(), now.GetCbrBtnMsg()})
            EXPECT_EQ(text.ToUtf8().find_first_of("{}#"), std::string::npos)
                << after << ": " << where << ": " << text.ToUtf8();
    };
    for (int feature = kFirstFeature; feature <= kLastFeature; ++feature) {
        check(state(feature), std::to_string(feature));
        for (const auto& option : options(feature))
            check(option.GetInterpretedState(), option.GetOptionDisplayString().ToUtf8());
    }
}

TEST_F(OfficeC430, ExplainsEveryLimitAfterAnySingleChange)
{
    for (const char* language : o7::kLanguages) {
        useLanguage(language);
        for (int feature = kFirstFeature; feature <= kLastFeature; ++feature) {
            std::vector<int> values{0, 1}; // of a switch
            for (const auto& option : options(feature))
                values.push_back(option.GetValueId().GetValueEnum());
            for (const int value : values) {
                m_model->RevertToAccepted();
                set(feature, value);
                expectAllExplained(std::to_string(feature) + "=" + std::to_string(value));
            }
        }
    }
}

enum class Effect
{
    Free,
    Disabled,
    Cleared,
    Hidden,
    Info,
    Conflict
};

Effect effectOf(const InterpretedState& now)
{
    if (now.IsHidden())
        return Effect::Hidden;
    if (now.HasCbrBtnMsg())
        return Effect::Conflict;
    if (now.IsCleared())
        return Effect::Cleared;
    if (now.IsDisabled())
        return Effect::Disabled;
    return now.HasInfoBtnMsg() ? Effect::Info : Effect::Free;
}

struct Story
{
    const char* name;
    std::vector<std::pair<int, int>> choices; ///< Feature and value, in the order of choosing.
    int feature;
    int option; ///< 0: the whole feature.
    Effect effect;
};

const Story kStories[] = {
    {"no finisher, no stapling", {{3040, 5220}}, 3012, 0, Effect::Disabled},
    {"no finisher, no punching", {{3040, 5220}}, 3013, 0, Effect::Disabled},
    {"office finisher cannot stitch", {{3018, 1}}, 3012, 5163, Effect::Disabled},
    {"booklet finisher stitches booklets", {{3040, 5222}, {3018, 1}}, 3012, 5163, Effect::Free},
    {"stitched: booklet tray", {{3040, 5222}, {3018, 1}, {3012, 5163}}, 3015, 5178, Effect::Free},
    {"black-and-white family has no colour", {{285, 8432}}, 3009, 0, Effect::Hidden},
    {"no punch kit", {{3042, 0}}, 3013, 0, Effect::Disabled},
    {"folding unit", {{3044, 1}}, 3014, 0, Effect::Free},
    {"two trays: no tray 3", {{3041, 5225}}, 3003, 5123, Effect::Disabled},
    {"no duplex unit", {{3046, 0}}, 3005, 0, Effect::Disabled},
    {"no duplex unit, no booklet", {{3046, 0}}, 3018, 0, Effect::Cleared},
    {"no hard disk: no saved job", {{3043, 0}}, 3001, 5104, Effect::Disabled},
    {"no hard disk: normal print", {{3043, 0}}, 3001, 5100, Effect::Free},
    {"labels one-sided", {{3004, 5134}}, 3005, 5141, Effect::Disabled},
    {"two-sided, then labels", {{3005, 5141}, {3004, 5134}}, 3005, 0, Effect::Conflict},
    {"envelope size, plain paper", {{3002, 5116}}, 3004, 0, Effect::Conflict},
    {"envelope size and type", {{3002, 5116}, {3004, 5136}}, 3004, 5136, Effect::Free},
    {"envelope type on A4", {{3004, 5136}}, 3004, 0, Effect::Conflict},
    {"envelopes not from tray 2", {{3002, 5116}, {3004, 5136}}, 3003, 5122, Effect::Disabled},
    {"envelopes from bypass", {{3002, 5116}, {3004, 5136}}, 3003, 5125, Effect::Free},
    {"A3 not from tray 1", {{3002, 5110}}, 3003, 5121, Effect::Disabled},
    {"tray 1, then A3", {{3003, 5121}, {3002, 5110}}, 3003, 0, Effect::Conflict},
    {"heavyweight two-sided is slower", {{3004, 5132}}, 3005, 5141, Effect::Info},
    {"heavyweight not folded", {{3044, 1}, {3004, 5132}}, 3014, 0, Effect::Disabled},
    {"stapled, not folded", {{3044, 1}, {3012, 5161}}, 3014, 0, Effect::Disabled},
    {"folded, then stapled", {{3044, 1}, {3014, 5171}, {3012, 5161}}, 3014, 0, Effect::Conflict},
    {"punched, not folded", {{3044, 1}, {3013, 5166}}, 3014, 0, Effect::Disabled},
    {"stapled, not collated", {{3008, 0}, {3012, 5161}}, 3012, 0, Effect::Conflict},
    {"booklet sets the sides", {{3018, 1}}, 3005, 0, Effect::Disabled},
    {"booklet sets pages per sheet", {{3018, 1}}, 3016, 0, Effect::Disabled},
    {"borders with two pages", {{3016, 5181}}, 3017, 0, Effect::Free},
    {"high quality, full toner", {{3010, 5157}}, 3011, 0, Effect::Cleared},
    {"draft not at 1200 dpi", {{3010, 5155}}, 3019, 5191, Effect::Disabled},
    {"black and white", {{3009, 5152}}, 3020, 0, Effect::Disabled},
    {"edge to edge on A5", {{3002, 5112}}, 3031, 0, Effect::Cleared},
    {"watermark on first page", {{3023, 5201}}, 3024, 0, Effect::Free},
    {"pale watermark", {{3023, 5201}, {3011, 1}}, 3023, 0, Effect::Info},
    {"cover tray", {{3025, 5206}}, 3026, 0, Effect::Free},
    {"secure job, no banner", {{3001, 5101}}, 3022, 0, Effect::Cleared},
    {"no two-way communication", {{3045, 0}}, 3029, 0, Effect::Cleared},
};

TEST_F(OfficeC430, LimitsWhatAPersonExpects)
{
    for (const Story& story : kStories) {
        SCOPED_TRACE(story.name);
        m_model->RevertToAccepted();
        for (const auto& [feature, value] : story.choices)
            EXPECT_TRUE(set(feature, value)) << feature << "=" << value;
        const auto now =
            story.option == 0 ? state(story.feature) : optionState(story.feature, story.option);
        EXPECT_EQ(effectOf(now), story.effect);
    }
}

} // namespace
