#include "testproduct.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using test::Product;

/// Changes a feature of every kind that can be changed, and accepts that.
void ChangeEverything(const Product& product)
{
    auto all = product.All();
    all.GetOptionFeature(test::kMedia).SetValue(CXString(L"Bütten"));
    product.Set(test::kStaple, test::kOneStaple);
    all.GetIntegerFeature(test::kCopies).SetValue(999);
    all.GetBooleanFeature(test::kCollate).SetIsSpecified(false);
    all.GetStringFeature(test::kName).SetValue(L"\x4E2D\x6587");
    all.GetRangeFeature(test::kPages).SetValue(7, 400);
    all.GetDimensionFeature(test::kWidth).SetValue(Dimension(8.27, Dimension::UnitsEnum::Inch));
    all.GetListOfFeatures(test::kColour).GetIntegerFeature(test::kSaturation).SetValue(-5);
    all.GetIntegerFeature(test::kPrivate).SetValue(4);
    auto pages = all.GetListOfValues(test::kSpecialPages);
    pages.CreateListOfFeatures();
    pages.CreateListOfFeatures().GetIntegerFeature(test::kCopies).SetValue(2);
    all.GetListOfValues(test::kTexts).CreateOptionFeature().SetValue(test::kFilm);
    product.model->CommitAccepted();
}

std::vector<std::uint8_t> Block(const Product& product)
{
    std::vector<std::uint8_t> block;
    EXPECT_TRUE(product.model->ExportSettings(block));
    return block;
}

TEST(SettingsBlock, RoundTripsEveryKind)
{
    const Product from;
    ChangeEverything(from);
    const auto block = Block(from);
    EXPECT_LT(block.size(), 200U);

    const Product to;
    to.Set(test::kSides, test::kTwoSided);
    auto padded = block;
    padded.resize(4096);
    EXPECT_TRUE(to.model->ImportSettings(padded.data(), padded.size()));
    EXPECT_EQ(Block(to), block);
    EXPECT_EQ(to.Get(test::kSides), test::kOneSided) << "what the block leaves out is default";
    EXPECT_EQ(to.All().GetOptionFeature(test::kMedia).GetValue().GetValueName(), L"Bütten");
    EXPECT_FALSE(to.model->IsModified());

    std::vector<std::uint8_t> small;
    EXPECT_FALSE(from.model->ExportSettings(small, block.size() - 1));
    EXPECT_TRUE(small.empty());
}

TEST(SettingsBlock, DamageIsRefusedWhole)
{
    const Product from;
    ChangeEverything(from);
    const auto block = Block(from);
    const Product to;
    const auto untouched = Block(to);
    for (std::size_t i = 0; i < block.size(); ++i) {
        EXPECT_FALSE(to.model->ImportSettings(block.data(), i)) << "cut off at " << i;
        auto flipped = block;
        flipped[i] ^= 0x10U;
        EXPECT_FALSE(to.model->ImportSettings(flipped.data(), flipped.size())) << "byte " << i;
    }
    EXPECT_FALSE(to.model->ImportSettings(nullptr, 0));
    EXPECT_EQ(Block(to), untouched);
    EXPECT_FALSE(to.model->IsModified());
}

class JobTicket : public testing::Test
{
protected:
    JobTicket()
    {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~JobTicket() override { std::filesystem::remove_all(folder); }

    std::string Text() const
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    void Write(const std::string& text) const
    {
        std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
    }

    std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("o7-ticket-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::path file = folder / "settings.json";
    std::string message;
};

TEST_F(JobTicket, RoundTripsEveryKind)
{
    const Product from;
    ChangeEverything(from);
    ASSERT_TRUE(from.model->SaveJobTicket(file, message)) << message;
    ASSERT_TRUE(from.model->SaveJobTicket(file, message)) << "over the old one";
    EXPECT_FALSE(std::filesystem::exists(folder / "settings.json.new"));

    const Product to;
    EXPECT_EQ(to.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
    EXPECT_EQ(Block(to), Block(from));
    EXPECT_FALSE(to.model->IsModified());
    EXPECT_EQ(to.Number(test::kPrivate), 0) << "not saved";
    ASSERT_TRUE(to.model->SaveJobTicket(folder / "again.json", message));
    const auto first = Text();
    file = folder / "again.json";
    EXPECT_EQ(Text(), first);
}

TEST_F(JobTicket, OnlyAcceptedSettingsAreSavedAndNoFileLeavesTheDefaults)
{
    const Product product;
    const auto result = product.model->LoadJobTicket(file);
    EXPECT_EQ(result.outcome, o7::JobTicketOutcome::None);
    EXPECT_TRUE(result.message.empty());
    product.Set(test::kMedia, test::kFilm);
    ASSERT_TRUE(product.model->SaveJobTicket(file, message));
    const Product other;
    other.model->LoadJobTicket(file);
    EXPECT_EQ(other.Get(test::kMedia), test::kPlain);
}

TEST_F(JobTicket, ADamagedFileIsSetAside)
{
    const Product product;
    ASSERT_TRUE(product.model->SaveJobTicket(file, message));
    const std::string sound = Text();
    const auto without = [&](const char* from, const char* to) {
        std::string text = sound;
        text.replace(text.find(from), std::string(from).size(), to);
        return text;
    };
    const std::string damaged[] = {std::string(),
                                   "[]",
                                   sound.substr(0, sound.size() / 2),
                                   without("\"plain\"", "\"film\""),
                                   without("o7-job-ticket", "ticket"),
                                   without("\"version\": 1", "\"version\": 2"),
                                   without("TST1", "TST2"),
                                   std::string(1U << 16U, '[')};
    for (const std::string& text : damaged) {
        Write(text);
        const auto result = product.model->LoadJobTicket(file);
        EXPECT_EQ(result.outcome, o7::JobTicketOutcome::Damaged) << text;
        EXPECT_NE(result.message.find(result.setAside.filename().string()), std::string::npos);
        EXPECT_TRUE(std::filesystem::exists(result.setAside));
        EXPECT_FALSE(std::filesystem::exists(file));
        EXPECT_EQ(product.Get(test::kMedia), test::kPlain);
    }
    const auto files = std::distance(std::filesystem::directory_iterator(folder), {});
    EXPECT_EQ(static_cast<std::size_t>(files), std::size(damaged)) << "none overwrote another";
}

TEST_F(JobTicket, WhatIsNotOursIsKept)
{
    // A file of a later driver: an unknown feature, and one inside a known list. The checksum is
    // that of the settings text.
    constexpr const char* kSettings =
        R"({"odrv-colour":{"odrv-hue":7,"odrv-saturation":3},"odrv-future":[1,{"a":null}]})";
    Write(std::string(R"({"format":"o7-job-ticket","version":1,"product":"TST1",)") +
          R"("checksum":"cd46221e","settings":)" + kSettings + "}");
    const Product product;
    ASSERT_EQ(product.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
    EXPECT_EQ(test::Number(product.All().GetListOfFeatures(test::kColour), test::kSaturation), 3);
    ASSERT_TRUE(product.model->SaveJobTicket(file, message));
    const std::string text = Text();
    EXPECT_NE(text.find("odrv-hue"), std::string::npos);
    EXPECT_NE(text.find("odrv-future"), std::string::npos);
    const Product again;
    EXPECT_EQ(again.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
}

TEST_F(JobTicket, AFailedWriteSaysSo)
{
    const Product product;
    Write("in the way");
    EXPECT_FALSE(product.model->SaveJobTicket(file / "below" / "a-file.json", message));
    EXPECT_FALSE(message.empty());
    EXPECT_EQ(Text(), "in the way");
}

} // namespace
