// What every product answers to the questions of DeviceCapabilities, and how its values travel in
// the public fields of a DEVMODE.
#include "devicecapabilities.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <filesystem>
#include <set>
#include <vector>

#include "documentsettings.h"
#include "productfolders.h"
#include "productundertest.h"
#include "publicfields.h"
#include "systemnumbers.h"
#include "testmodel.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;

using test::Product;

class EveryProduct : public testing::TestWithParam<fs::path>
{
protected:
    void SetUp() override { ASSERT_TRUE(m_product.isLoaded()); }

    std::uint32_t ask(std::uint16_t capability) const
    {
        return deviceCapability(*m_model, capability, nullptr);
    }

    template <class Number>
    std::vector<Number> list(std::uint16_t capability, std::size_t perEntry = 1) const
    {
        const std::uint32_t count = ask(capability);
        EXPECT_LT(count, 1000U) << capability;
        std::vector<Number> entries(count * perEntry + 1, Number{0x55});
        EXPECT_EQ(deviceCapability(*m_model, capability, entries.data()), count) << capability;
        EXPECT_EQ(entries.back(), Number{0x55}) << "more than was counted: " << capability;
        entries.pop_back();
        return entries;
    }

    const Product m_product{GetParam()};
    const std::unique_ptr<IDataModel> m_model = m_product.model();
};

TEST_P(EveryProduct, AnswersListsThatBelongTogether)
{
    const auto papers = list<std::uint16_t>(kCapPapers);
    const auto sizes = list<std::int32_t>(kCapPaperSize, 2);
    ASSERT_EQ(sizes.size(), 2 * papers.size());
    const std::uint32_t least = ask(kCapMinExtent);
    const std::uint32_t most = ask(kCapMaxExtent);
    for (std::size_t i = 0; i < papers.size(); ++i) {
        SCOPED_TRACE("paper " + std::to_string(papers[i]));
        EXPECT_GE(sizes[2 * i], static_cast<int>(least & 0xFFFF));
        EXPECT_GE(sizes[2 * i + 1], static_cast<int>(least >> 16));
        EXPECT_LE(sizes[2 * i], static_cast<int>(most & 0xFFFF));
        EXPECT_LE(sizes[2 * i + 1], static_cast<int>(most >> 16));
    }
    EXPECT_GT(least, 0U);

    struct Row
    {
        std::uint16_t names;
        std::size_t length;
        std::uint16_t numbers;
    };
    constexpr Row rows[] = {{kCapPaperNames, 64, kCapPapers},
                            {kCapBinNames, 24, kCapBins},
                            {kCapMediaTypeNames, 64, kCapMediaTypes}};
    for (const Row& row : rows) {
        const auto names = list<std::uint16_t>(row.names, row.length);
        EXPECT_EQ(names.size(), row.length * ask(row.numbers));
        for (std::size_t at = 0; at < names.size(); at += row.length) {
            EXPECT_NE(names[at], 0U) << "a name is empty: " << row.names;
            EXPECT_EQ(names[at + row.length - 1], 0U);
        }
    }
    const auto bins = list<std::uint16_t>(kCapBins);
    EXPECT_EQ(std::set(bins.begin(), bins.end()).size(), bins.size());
    EXPECT_EQ(std::set(papers.begin(), papers.end()).size(), papers.size());
    for (const std::int32_t dots : list<std::int32_t>(kCapResolutions, 2)) {
        EXPECT_GE(dots, 75);
    }
}

TEST_P(EveryProduct, AnswersNumbers)
{
    EXPECT_EQ(ask(kCapSize) + ask(kCapExtra), kDevModeSize);
    EXPECT_EQ(ask(kCapFields), publicFields(m_model->GetFullListOfFeatures()).fields);
    constexpr std::uint32_t kAlways = kPaperSizeField | kOrientationField | kCopiesField;
    EXPECT_EQ(ask(kCapFields) & kAlways, kAlways);
    EXPECT_EQ(ask(kCapOrientation), 90U);
    EXPECT_GT(ask(kCapCopies), 1U);
    for (const std::uint16_t yesOrNo : {kCapDuplex, kCapColourDevice, kCapCollate, kCapStaple}) {
        EXPECT_LE(ask(yesOrNo), 1U) << yesOrNo;
    }
    EXPECT_EQ(ask(15), kNotAnswered); // the fonts are a matter of whoever renders
    EXPECT_EQ(ask(0xFFFF), kNotAnswered);
}

/// Every value of a field, through the public part alone, as between two programs that share
/// nothing but that.
TEST_P(EveryProduct, KeepsEachValueInThePublicFields)
{
    for (const auto field :
         {DocumentField::Orientation, DocumentField::PaperSize, DocumentField::Source,
          DocumentField::Duplex, DocumentField::Quality, DocumentField::MediaType}) {
        const auto options =
            featureOf(m_model->GetFullListOfFeatures(), field).GetOptionCapabilities();
        for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
            const ValueId value = options->GetOptionWithState(i).GetValueId();
            EXPECT_TRUE(systemNumber(field, value)) << value.GetAsCpssString().ToUtf8();
            const auto source = m_product.model();
            if (!featureOf(source->GetFullListOfFeatures(), field).SetValue(value)) {
                continue; // not with these defaults
            }
            source->CommitAccepted();
            std::array<std::uint8_t, kDevModeSize> devMode{};
            EXPECT_TRUE(writeDevMode(*source, L"Printer", devMode));
            devMode[kExtraAt] = devMode[kExtraAt + 1] = 0;
            const auto target = m_product.model();
            mergeDevMode(*target, devMode);
            EXPECT_EQ(featureOf(target->GetFullListOfFeatures(), field).GetValue(), value)
                << value.GetAsCpssString().ToUtf8();
        }
    }
}

TEST(DeviceCapability, LeavesOutWhatNeedsAUnitThatIsNotThere)
{
    const test::TestModel model;
    EXPECT_EQ(deviceCapability(*model, kCapDuplex, nullptr), 1U);
    EXPECT_EQ(deviceCapability(*model, kCapPapers, nullptr), 4U);
    model.setFlag(test::kDuplexUnit, false);
    EXPECT_EQ(deviceCapability(*model, kCapDuplex, nullptr), 0U);
    // What a document has chosen is no matter of the device.
    model.choose(kPaperTray, 5121);
    EXPECT_EQ(deviceCapability(*model, kCapPapers, nullptr), 4U);
}

INSTANTIATE_TEST_SUITE_P(Products, EveryProduct, testing::ValuesIn(test::productFolders()),
                         test::productTestName);

} // namespace
} // namespace o7
