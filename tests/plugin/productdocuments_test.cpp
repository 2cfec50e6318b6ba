// Documents of every product: large ones fit, any that a program has changed settles at once, and
// secrets stay where they belong.
#include "documentsettings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "productfeatures.h"
#include "productfolders.h"
#include "productundertest.h"
#include "systemnumbers.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;
using test::Product;

using Bytes = std::vector<std::uint8_t>;

Bytes written(IDataModel& model, SettingsScope scope = SettingsScope::Document)
{
    Bytes bytes(kDevModeSize, 0xCD);
    EXPECT_TRUE(
        writeDevMode(model, L"Printer", std::span<std::uint8_t, kDevModeSize>(bytes), scope));
    return bytes;
}

FeatureId featureId(int number)
{
    return FeatureId(static_cast<DataModelIds::tagFeatureEnum>(number));
}

void setAnyOption(const OptionFeatureRef& feature, std::size_t which)
{
    OptionFeatureRef writable = feature;
    const auto options = feature.GetOptionCapabilities();
    if (const std::size_t count = options->GetNumberOfValues()) {
        writable.SetValue(options->GetOptionWithState(which % count).GetValueId());
    }
}

/// Settings as a person would come to them in a random walk, lists and texts included.
void changeAtRandom(IFeatureNode& feature, std::mt19937& random)
{
    const auto number = [&](int most) {
        return static_cast<int>(random() % static_cast<unsigned>(most));
    };
    switch (feature.GetKind()) {
    case FeatureKind::Option: {
        const auto capabilities = feature.GetCapabilities();
        const auto& options = dynamic_cast<const OptionCapability&>(*capabilities);
        if (options.GetNumberOfValues() != 0) {
            feature.SetValue(
                options.GetOptionWithState(random() % options.GetNumberOfValues()).GetValueId());
        }
        break;
    }
    case FeatureKind::Integer:
        feature.SetValue(number(200));
        break;
    case FeatureKind::Boolean:
        feature.SetValue(number(2) == 1);
        break;
    case FeatureKind::String:
        feature.SetValue(CXString::Formatted(L"%d", number(10000)));
        break;
    case FeatureKind::Dimension:
        feature.SetValue(Dimension(number(600), Dimension::UnitsEnum::Millimetre));
        break;
    default:
        break;
    }
}

void changeSome(IDataModel& model, std::mt19937& random)
{
    const auto top = model.GetFullListOfFeatures().GetNode();
    for (int changes = static_cast<int>(random() % 12); changes > 0; --changes) {
        const auto feature = top->GetChild(random() % top->GetNumChildren());
        const auto capabilities = feature->GetCapabilities();
        if (!capabilities->GetInterpretedState().IsDisabled() &&
            !capabilities->IsStateOnlyFeature()) {
            changeAtRandom(*feature, random);
        }
    }
    model.CommitAccepted();
}

/// Public fields as a program may leave them: some with numbers of ours, some with any.
void scribble(Bytes& devMode, std::mt19937& random)
{
    constexpr std::size_t kNumbers[] = {kOrientationAt, kPaperSizeAt, kPaperLengthAt, kPaperWidthAt,
                                        kScaleAt,       kCopiesAt,    kSourceAt,      kQualityAt,
                                        kColourAt,      kDuplexAt,    kYResolutionAt, kCollateAt,
                                        kMediaTypeAt};
    constexpr int kUsual[] = {0,    1,    2,    3,    4,    5,    7,   8,   9,
                              11,   15,   70,   100,  256,  257,  258, 300, 600,
                              1200, 2100, 2159, 2794, 2970, 4200, -1,  -3,  -4};
    for (int changes = static_cast<int>(random() % 6); changes > 0; --changes) {
        const std::size_t at = kNumbers[random() % std::size(kNumbers)];
        const auto value = random() % 4 == 0 ? static_cast<int>(random() % 0x2000)
                                             : kUsual[random() % std::size(kUsual)];
        devMode[at] = static_cast<std::uint8_t>(value);
        devMode[at + 1] = static_cast<std::uint8_t>(value >> 8);
    }
    for (int bits = static_cast<int>(random() % 4); bits > 0; --bits) {
        devMode[kFieldsAt + random() % 4] ^= static_cast<std::uint8_t>(1U << (random() % 8));
    }
    if (random() % 8 == 0) {
        devMode[kExtraAt] = devMode[kExtraAt + 1] = 0; // another driver's
    }
}

class EveryDocument : public testing::TestWithParam<fs::path>
{
protected:
    void SetUp() override { ASSERT_TRUE(m_product.isLoaded()); }

    const Product m_product{GetParam()};
};

/// Everything that a model holds, as lines.
std::string settingsOf(const IFeatureNode& list)
{
    std::string text;
    for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
        const auto feature = list.GetChild(i);
        FeatureValue value;
        feature->GetValue(value);
        text += feature->GetId().Dump(false).ToUtf8() + (feature->IsSpecified() ? " " : " - ");
        if (const auto* option = std::get_if<ValueId>(&value)) {
            text += option->GetValueName().ToUtf8();
        } else if (const auto* number = std::get_if<int>(&value)) {
            text += std::to_string(*number);
        } else if (const auto* flag = std::get_if<bool>(&value)) {
            text += *flag ? "on" : "off";
        } else if (const auto* words = std::get_if<CXString>(&value)) {
            text += words->ToUtf8();
        } else if (const auto* length = std::get_if<Dimension>(&value)) {
            text += std::to_string(length->GetCount());
        }
        text += '\n' + settingsOf(*feature);
    }
    return text;
}

std::string settingsOf(IDataModel& model)
{
    return settingsOf(*model.GetFullListOfFeatures().GetNode());
}

TEST_P(EveryDocument, SettlesWithTheFirstMerging)
{
    std::mt19937 random(20260);
    for (int round = 0; round < 100; ++round) {
        const auto author = m_product.model();
        changeSome(*author, random);
        Bytes changed = written(*author);
        scribble(changed, random);
        const auto once = m_product.model();
        mergeDevMode(*once, changed);
        const Bytes first = written(*once);
        const auto twice = m_product.model();
        mergeDevMode(*twice, first);
        ASSERT_EQ(settingsOf(*twice), settingsOf(*once)) << "round " << round;
        // And what programs read of it.
        const Bytes second = written(*twice);
        ASSERT_TRUE(std::equal(first.begin(), first.begin() + kPublicPartSize, second.begin()))
            << "round " << round;
    }
}

TEST_P(EveryDocument, HoldsTwoHundredAndFiftySpecialPages)
{
    const auto model = m_product.model();
    auto pages = model->GetFullListOfFeatures().GetListOfValues(featureId(3165));
    if (!pages.IsSupported()) {
        GTEST_SKIP() << "no special pages";
    }
    const std::size_t wanted =
        std::min<std::size_t>(250, pages.GetListOfValuesCapabilities()->GetMaximumItems());
    for (std::size_t i = 0; i < wanted; ++i) {
        auto page = pages.CreateListOfFeatures();
        ASSERT_TRUE(page.IsSupported()) << i;
        const auto range =
            CXString::Formatted(L"%d-%d", static_cast<int>(7 * i), static_cast<int>(7 * i + 5));
        EXPECT_TRUE(page.GetStringFeature(featureId(3167)).SetValue(range));
        EXPECT_TRUE(page.GetIntegerFeature(featureId(3168)).SetValue(static_cast<int>(i % 99 + 2)));
        setAnyOption(page.GetOptionFeature(featureId(3003)), i);
        setAnyOption(page.GetOptionFeature(featureId(3004)), i);
        setAnyOption(page.GetOptionFeature(featureId(3101)), i);
    }
    model->CommitAccepted();
    const Bytes document = written(*model);
    const auto other = m_product.model();
    mergeDevMode(*other, document);
    EXPECT_EQ(other->GetFullListOfFeatures().GetListOfValues(featureId(3165)).GetNumItems(),
              wanted);
    EXPECT_EQ(written(*other), document);
}

bool contains(const Bytes& bytes, const Bytes& text)
{
    return std::search(bytes.begin(), bytes.end(), text.begin(), text.end()) != bytes.end();
}

TEST_P(EveryDocument, CarriesItsSecretsUnreadableAndGivesThemToNobodyElse)
{
    const auto model = m_product.model();
    auto pin = model->GetFullListOfFeatures().GetStringFeature(featureId(3240));
    if (!pin.IsSupported()) {
        GTEST_SKIP() << "no PIN";
    }
    EXPECT_TRUE(pin.GetCapabilities()->IsSecret());
    ASSERT_TRUE(pin.SetValue(L"58273961"));
    model->CommitAccepted();
    const Bytes document = written(*model);
    const Bytes narrow{'5', '8', '2', '7', '3', '9', '6', '1'};
    EXPECT_FALSE(contains(document, narrow));
    EXPECT_FALSE(contains(document, CXString(L"58273961").ToUtf16Le()));

    const auto pinAfter = [&](const Bytes& bytes, SettingsScope scope) {
        const auto other = m_product.model();
        mergeDevMode(*other, bytes, scope);
        CXString text;
        other->GetFullListOfFeatures()
            .GetStringFeature(featureId(3240))
            .GetValue(text, FeatureRef::kAssertIfUnsupported);
        return text;
    };
    EXPECT_EQ(pinAfter(document, SettingsScope::Document), L"58273961");
    EXPECT_EQ(pinAfter(document, SettingsScope::Defaults), L"") << "of new documents";
    EXPECT_EQ(pinAfter(written(*model, SettingsScope::Defaults), SettingsScope::Document), L"");
    for (const auto scope : {SettingsScope::All, SettingsScope::Defaults}) {
        Bytes block;
        EXPECT_TRUE(model->ExportSettings(block, kSettingsBlockLimit, scope));
        const auto other = m_product.model();
        EXPECT_TRUE(other->ImportSettings(block.data(), block.size(), SettingsScope::Document));
        Bytes none;
        Bytes without;
        EXPECT_TRUE(
            m_product.model()->ExportSettings(none, kSettingsBlockLimit, SettingsScope::Document));
        EXPECT_TRUE(other->ExportSettings(without, kSettingsBlockLimit, SettingsScope::Document));
        EXPECT_EQ(without, none) << "the PIN was all that differed";
    }
}

INSTANTIATE_TEST_SUITE_P(Products, EveryDocument, testing::ValuesIn(test::productFolders()),
                         test::productTestName);

} // namespace
} // namespace o7
