// The products as a whole: each package loads, every text exists in every language, and the
// constraints limit what a person would expect, each with a sentence that says why.

#include "datamodelfactory.h"
#include "optioncapability.h"
#include "pagecheck.h"
#include "products.h"

#include <gmock/gmock.h>

#include <map>
#include <regex>
#include <set>
#include <span>

namespace {

using o7::FeatureKind;
using o7::StringTable;

std::unique_ptr<o7::ProductPackage> loadPackage(const std::string& product)
{
    std::vector<o7::PackageError> errors;
    auto package = o7::LoadProductPackage(o7::productFolder(product), errors);
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

/// The settings: device settings from 3040, printing from 3001 and from 3101. The numbers in these
/// tests are those of the packages.
constexpr int kFirstFeature = 3001;
constexpr int kLastFeature = 3399;

/// A product in a data model, with English texts.
class Product
{
public:
    explicit Product(const std::string& name)
        : m_package(loadPackage(name)), m_strings(o7::productStrings(name, "en"))
    {
        if (m_package)
            m_model = o7::CreateDataModel(*m_package, m_strings);
    }

    const o7::ProductPackage& package() const { return *m_package; }
    bool loaded() const { return m_model != nullptr; }
    void restore() { m_model->RevertToAccepted(); }

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
        case FeatureKind::Dimension:
            return list.GetDimensionFeature(id).SetValue(
                Dimension(value, Dimension::UnitsEnum::Millimetre));
        default:
            return false;
        }
    }

    bool write(int feature, const o7::FeatureValue& value)
    {
        return m_model->GetFeatureRef(featureId(feature))->GetNode()->SetValue(value);
    }

    /// What every setting with a value has now.
    std::map<int, o7::FeatureValue> values()
    {
        std::map<int, o7::FeatureValue> result;
        for (const int feature : features()) {
            o7::FeatureValue value;
            if (m_model->GetFeatureRef(featureId(feature))->GetNode()->GetValue(value))
                result[feature] = value;
        }
        return result;
    }

    bool has(int feature, int value)
    {
        const o7::FeatureValue now = values()[feature];
        const auto* option = std::get_if<ValueId>(&now);
        const auto* length = std::get_if<Dimension>(&now);
        return option != nullptr
                   ? *option == valueId(value)
                   : length != nullptr && length->GetDoubleValue(length->GetUnits()) == value;
    }

    std::vector<int> features()
    {
        std::vector<int> result;
        for (int number = kFirstFeature; number <= kLastFeature; ++number)
            if (m_model->GetFeatureRef(featureId(number))->IsSupported())
                result.push_back(number);
        return result;
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

private:
    std::unique_ptr<o7::ProductPackage> m_package;
    o7::StringTableSource m_strings;
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

class Products : public testing::TestWithParam<o7::ProductUnderTest>
{
};

TEST_P(Products, AreWhole)
{
    const auto package = loadPackage(GetParam().name);
    ASSERT_TRUE(package);
    EXPECT_THAT(package->GetFeatureCount(), testing::AllOf(testing::Ge(60U), testing::Le(160U)));
    EXPECT_THAT(package->GetConstraintCount(), testing::AllOf(testing::Ge(80U), testing::Le(300U)));
    const ProductInfo& info = package->GetProductInfo();
    EXPECT_EQ(info.id.ToUtf8(), GetParam().name);
    EXPECT_EQ(info.controllerFamily, GetParam().family);
    std::vector<std::string> languages;
    for (const auto& language : info.languages)
        languages.push_back(language.ToUtf8());
    EXPECT_THAT(languages, testing::ElementsAreArray(o7::kLanguages));
}

TEST_P(Products, HaveEveryTextTheyNeed)
{
    const auto package = loadPackage(GetParam().name);
    ASSERT_TRUE(package);
    const StringTable strings = o7::productStrings(GetParam().name, "en");
    for (const unsigned number : package->GetStringNumbers())
        EXPECT_TRUE(strings.count(number)) << "missing: " << number;
    for (const unsigned number :
         {1357U, 1358U, 11014U, 11015U, 35000U, 35001U, 35002U, 60269U, 60296U, 60298U, 60299U})
        EXPECT_TRUE(strings.count(number)) << "missing: " << number;
}

TEST_P(Products, SayTheSameInEveryLanguage)
{
    const StringTable english = o7::productStrings(GetParam().name, "en");
    for (const char* language : o7::kLanguages) {
        const StringTable other = o7::productStrings(GetParam().name, language);
        for (const auto& [number, text] : english) {
            SCOPED_TRACE(std::string(language) + " " + std::to_string(number));
            const auto found = other.find(number);
            if (found == other.end()) {
                ADD_FAILURE() << "missing";
                continue;
            }
            EXPECT_NE(found->second, "");
            EXPECT_EQ(placeholders(found->second), placeholders(text));
            EXPECT_EQ(o7::mnemonicOf(found->second).empty(), o7::mnemonicOf(text).empty());
        }
        for (const auto& [number, text] : other)
            EXPECT_TRUE(english.count(number)) << language << " alone has " << number << text;
    }
}

TEST_P(Products, OpenWithoutAConflict)
{
    Product product(GetParam().name);
    ASSERT_TRUE(product.loaded());
    for (const int feature : product.features()) {
        const auto now = product.state(feature);
        EXPECT_FALSE(now.IsHidden()) << feature;
        EXPECT_FALSE(now.HasCbrBtnMsg()) << feature << ": " << now.GetCbrBtnMsg().ToUtf8();
    }
}

/// Lists, which wait for dialogs of their own, and what the device only tells.
const std::set<int> kWithoutPlace{3105, 3165, 3214, 3220, 3260, 3266, 3307, 3330, 3331};

TEST_P(Products, ShowEverySetting)
{
    Product product(GetParam().name);
    ASSERT_TRUE(product.loaded());
    std::set<int> placed;
    for (const int mode : {1, 2, 3, 4}) {
        const UIData data(static_cast<UIMode>(mode),
                          static_cast<DataModelIds::tagValueEnum>(GetParam().family),
                          Workflow::Standard);
        o7::PageCheck(data).forEachFeature(
            [&](DataModelIds::tagFeatureEnum feature, unsigned) { placed.insert(feature); });
    }
    for (const int feature : product.features())
        EXPECT_NE(placed.contains(feature), kWithoutPlace.contains(feature)) << feature;
}

/// Whose label is short because of what stands around it: in a sentence the name says more.
const std::set<int> kNamedInFull{
    3024, 3030, 3051, 3054, 3069, 3070, 3071, 3082, 3101, 3103, 3104, 3107, 3115, 3123, 3124, 3131,
    3132, 3133, 3134, 3137, 3139, 3145, 3146, 3155, 3160, 3162, 3163, 3164, 3199, 3200, 3207, 3208,
    3226, 3228, 3230, 3242, 3243, 3244, 3247, 3249, 3251, 3252, 3286, 3302, 3304, 3312, 3317};

/// The text of a label without its key and colon.
std::string nameIn(std::string label)
{
    label = std::regex_replace(label, std::regex(R"(\(&.\)|&(?!&))"), "");
    return std::regex_replace(label, std::regex("(\\s|\u00A0)*(:|\uFF1A)?\\s*$"), "");
}

TEST_P(Products, CallASettingTheSameInLabelsAndSentences)
{
    for (const char* language : o7::kLanguages) {
        SCOPED_TRACE(language);
        const StringTable strings = o7::productStrings(GetParam().name, language);
        for (const int mode : {1, 2, 3, 4}) {
            const UIData data(static_cast<UIMode>(mode),
                              static_cast<DataModelIds::tagValueEnum>(GetParam().family),
                              Workflow::Standard);
            o7::PageCheck(data).forEachLabel([&](int feature, unsigned label) {
                const auto name = strings.find(20000U + static_cast<unsigned>(feature));
                if (name != strings.end() && !kNamedInFull.contains(feature)) {
                    EXPECT_EQ(nameIn(strings.at(label)), name->second) << feature;
                }
            });
        }
    }
}

std::string nameOf(const testing::TestParamInfo<o7::ProductUnderTest>& product)
{
    return "family" + std::to_string(product.param.family);
}
INSTANTIATE_TEST_SUITE_P(All, Products, testing::ValuesIn(o7::kProducts), nameOf);

/// Names of settings, and reasons: each is there because some product needs it.
TEST(SharedTexts, AreNeededBySomeProduct)
{
    std::set<unsigned> needed;
    std::set<unsigned> written;
    for (const auto& [name, family] : o7::kProducts) {
        const auto package = loadPackage(name);
        ASSERT_TRUE(package);
        const auto numbers = package->GetStringNumbers();
        needed.insert(numbers.begin(), numbers.end());
        for (const auto& [number, text] : o7::productStrings(name, "en"))
            written.insert(number);
    }
    for (const unsigned number : written) {
        const bool named = number > 20000 && number < 30000;
        // The data model's own (no room, the general reason) and the plug-in's: settings that may
        // not be changed.
        const bool ofDriver = number == 21781 || number == 21807 || number == 60269 ||
                              number == 60296 || number == 60298 || number == 60299;
        if ((named || number > 45000) && !ofDriver) {
            EXPECT_TRUE(needed.count(number)) << "never used: " << number;
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

const Story kOfficeStories[] = {
    {"no finisher, no stapling", {{3040, 5220}}, 3012, 0, Effect::Disabled},
    {"no finisher, no punching", {{3040, 5220}}, 3013, 0, Effect::Disabled},
    {"office finisher cannot stitch", {{3018, 1}}, 3012, 5163, Effect::Disabled},
    {"booklet finisher stitches booklets", {{3040, 5222}, {3018, 1}}, 3012, 5163, Effect::Free},
    {"stitched: booklet tray", {{3040, 5222}, {3018, 1}, {3012, 5163}}, 3015, 5178, Effect::Free},
    {"no punch kit", {{3042, 0}}, 3013, 0, Effect::Disabled},
    {"folding unit", {{3044, 1}}, 3014, 0, Effect::Free},
    {"two trays: no tray 3", {{3041, 5225}}, 3003, 5123, Effect::Disabled},
    {"no duplex unit", {{3046, 0}}, 3005, 0, Effect::Disabled},
    {"no duplex unit, no booklet", {{3046, 0}}, 3018, 0, Effect::Cleared},
    {"no hard disk: no saved job", {{3043, 0}}, 3001, 5104, Effect::Disabled},
    {"no hard disk: normal print", {{3043, 0}}, 3001, 5100, Effect::Free},
    {"labels one-sided", {{3004, 5134}}, 3005, 5141, Effect::Disabled},
    {"two-sided, then labels", {{3005, 5141}, {3004, 5134}}, 3005, 0, Effect::Conflict},
    {"envelope size, recycled paper", {{3004, 5131}, {3002, 5116}}, 3004, 0, Effect::Conflict},
    {"envelope size, its type follows", {{3002, 5116}}, 3004, 0, Effect::Disabled},
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
    {"cover tray", {{3025, 5206}}, 3026, 5122, Effect::Free},
    {"secure job, no banner", {{3001, 5101}}, 3022, 0, Effect::Cleared},
    {"no two-way communication", {{3045, 0}}, 3029, 0, Effect::Cleared},
    {"A5 too small for a booklet", {{3002, 5112}}, 3018, 0, Effect::Cleared},
    {"heavy sheets from tray 2", {{3004, 5132}, {3101, 5417}}, 3003, 5121, Effect::Disabled},
    {"narrow sheets from the bypass", {{3002, 5250}, {3103, 95}}, 3003, 5121, Effect::Disabled},
    {"a fax is not stapled", {{3050, 1}, {3001, 5240}}, 3012, 0, Effect::Disabled},
    {"recipients of a fax", {{3050, 1}, {3001, 5240}}, 3260, 0, Effect::Free},
    {"PIN of a secure job is needed", {{3001, 5101}}, 3240, 0, Effect::Info},
    {"colour not allowed: nothing to choose", {{3083, 5786}}, 3009, 0, Effect::Disabled},
    {"colour, then not allowed", {{3009, 5151}, {3083, 5786}}, 3009, 0, Effect::Conflict},
    {"glossy paper in tray 2", {{3076, 5133}, {3004, 5133}}, 3003, 5122, Effect::Free},
    // Last: Cancel leaves what the device reports as it is.
    {"black-and-white family has no colour", {{285, 8432}}, 3009, 0, Effect::Hidden},
};

const Story kProductionStories[] = {
    {"no binder, no binding", {{3055, 5758}, {3002, 5111}}, 3152, 5497, Effect::Disabled},
    {"rings without holes", {{3055, 5759}, {3002, 5111}, {3152, 5495}}, 3013, 0, Effect::Conflict},
    {"rings with holes",
     {{3055, 5759}, {3056, 5765}, {3002, 5111}, {3013, 5360}, {3152, 5495}},
     3013,
     0,
     Effect::Info},
    {"Swedish holes need their die", {}, 3013, 5359, Effect::Disabled},
    {"two copies are sets", {{3007, 2}}, 3147, 5487, Effect::Free},
    {"stitched books are trimmed", {{3018, 1}, {3012, 5163}}, 3149, 5491, Effect::Free},
    {"card cracks", {{3004, 5321}, {3101, 5416}, {3014, 5171}}, 3014, 0, Effect::Info},
    {"inserted covers stay blank", {{3025, 5206}, {3026, 5305}}, 3160, 5505, Effect::Disabled},
    {"each side shifted", {{3005, 5141}, {3130, 5466}}, 3133, 0, Effect::Free},
    {"no white toner", {}, 3205, 5578, Effect::Disabled},
    {"high gloss, then draft", {{3004, 5323}, {3204, 5574}}, 3010, 5155, Effect::Disabled},
    {"draft, then high gloss", {{3004, 5323}, {3010, 5155}}, 3204, 5574, Effect::Disabled},
};

const Story kMonoStories[] = {
    {"one tray", {}, 3003, 5122, Effect::Disabled},
    {"envelopes from the bypass", {{3002, 5267}, {3004, 5136}}, 3003, 5125, Effect::Free},
    {"no storage card, no PIN job", {}, 3001, 5101, Effect::Disabled},
    {"two-sided by hand without a duplex unit", {{3046, 0}}, 3114, 0, Effect::Free},
    {"poster is one-sided", {{3127, 5459}}, 3005, 5141, Effect::Disabled},
    {"saving toner sets the density", {{3011, 1}}, 3200, 0, Effect::Disabled},
};

const Story kPhotoStories[] = {
    {"canvas not to the edges", {{3004, 5336}}, 3031, 0, Effect::Cleared},
    {"no matte ink", {{3004, 5334}}, 3284, 5661, Effect::Disabled},
    {"thick paper, wide gap", {{3115, 1}}, 3286, 5665, Effect::Disabled},
    {"panorama from the roll", {{3002, 5274}}, 3003, 5306, Effect::Free},
    {"cut from the roll", {{3003, 5306}}, 3287, 0, Effect::Free},
    {"sheets are not cut", {}, 3287, 0, Effect::Disabled},
    {"tone of black and white", {{3009, 5152}}, 3195, 0, Effect::Free},
};

const Story kWideStories[] = {
    {"A0 on a narrow roll", {{3088, 610}, {3002, 5254}}, 3003, 5306, Effect::Disabled},
    {"tracing paper on roll 2", {{3091, 5340}, {3004, 5340}}, 3003, 5307, Effect::Free},
    {"tracing paper not on roll 1", {{3004, 5340}}, 3003, 5306, Effect::Disabled},
    {"sheets are not nested", {{3003, 5310}}, 3301, 0, Effect::Disabled},
    {"folding at the folder", {{3044, 1}, {3015, 5377}}, 3316, 0, Effect::Free},
    {"drawing scale", {{3028, 5402}}, 3312, 0, Effect::Free},
    {"pen table", {{3306, 5693}}, 3307, 0, Effect::Free},
};

constexpr struct
{
    const char* product;
    std::span<const Story> stories;
} kStories[] = {
    {"office-c430", kOfficeStories}, {"production-p900", kProductionStories},
    {"mono-m210", kMonoStories},     {"photo-x150", kPhotoStories},
    {"wide-w360", kWideStories},
};

/// What holds while something else governs a setting, whatever was chosen for it.
struct Governed
{
    const char* product;
    std::vector<std::pair<int, int>> choices;
    int feature;
    int value;
};

const Governed kGoverned[] = {
    {"office-c430", {{3018, 1}}, 3005, 5142},
    {"office-c430", {{3018, 1}}, 3016, 5181},
    {"office-c430", {{3002, 5110}}, 3103, 297},
    {"office-c430", {{3002, 5110}}, 3104, 420},
    {"office-c430", {{3121, 5}, {3018, 1}}, 3121, 0},
    {"office-c430", {{3005, 5141}, {3046, 0}}, 3005, 5140},
    {"office-c430", {{3018, 1}, {3046, 0}}, 3005, 5140},
    {"office-c430", {{3012, 5161}, {3050, 1}, {3001, 5240}}, 3012, 5160},
    {"office-c430", {{3050, 1}, {3001, 5240}}, 3009, 5152},
    {"production-p900", {{3018, 1}}, 3005, 5142},
    {"production-p900", {{3018, 1}}, 3016, 5181},
    {"mono-m210", {{3018, 1}}, 3005, 5142},
    {"mono-m210", {{3127, 5459}, {3018, 1}}, 3127, 5458},
    {"mono-m210", {{3016, 5181}, {3127, 5459}}, 3016, 5180},
    {"wide-w360", {{3003, 5310}}, 3287, 5670},
};

TEST(Constraints, SayWhatHoldsAndGiveThePersonsOwnBack)
{
    for (const Governed& governed : kGoverned) {
        SCOPED_TRACE(std::string(governed.product) + " " + std::to_string(governed.feature));
        Product product(governed.product);
        ASSERT_TRUE(product.loaded());
        const auto defaults = product.values();
        std::map<int, o7::FeatureValue> own;
        for (const auto& [feature, value] : governed.choices) {
            EXPECT_TRUE(product.set(feature, value)) << feature << "=" << value;
            own[feature] = product.values()[feature];
        }
        EXPECT_TRUE(product.has(governed.feature, governed.value));
        EXPECT_TRUE(product.state(governed.feature).IsDisabled());
        EXPECT_FALSE(product.state(governed.feature).HasCbrBtnMsg());
        // Back to the defaults, the last choice first: what was chosen before stands there again.
        for (auto choice = governed.choices.rbegin(); choice != governed.choices.rend(); ++choice) {
            EXPECT_EQ(product.values()[choice->first], own[choice->first]) << choice->first;
            EXPECT_TRUE(product.write(choice->first, defaults.at(choice->first)));
        }
        EXPECT_EQ(product.values(), defaults);
    }
}

TEST(Constraints, LimitWhatAPersonExpects)
{
    for (const auto& [name, stories] : kStories) {
        Product product(name);
        ASSERT_TRUE(product.loaded());
        for (const Story& story : stories) {
            SCOPED_TRACE(std::string(name) + ": " + story.name);
            product.restore();
            for (const auto& [feature, value] : story.choices)
                EXPECT_TRUE(product.set(feature, value)) << feature << "=" << value;
            const auto now = story.option == 0 ? product.state(story.feature)
                                               : product.optionState(story.feature, story.option);
            EXPECT_EQ(effectOf(now), story.effect);
        }
    }
}

} // namespace
