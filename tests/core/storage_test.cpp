#include "testproduct.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <thread>

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

/// What ChangeEverything() gave as a block of version 1.
constexpr std::string_view kFirstVersionBlock =
    "4f375342010000006a4fd88446000000e3f8f71d640b01d6950142c3bc7474656e6603018c5e670301ce0f68010069"
    "0701e4b8ade696876a04010ea0066b070180b9e2ab38006e046f020109780600046702010479040301e45d";

std::vector<std::uint8_t> BytesOf(std::string_view hex)
{
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes.push_back(
            static_cast<std::uint8_t>(std::stoul(std::string(hex.substr(i, 2)), nullptr, 16)));
    return bytes;
}

TEST(SettingsBlock, TheFirstVersionIsStillRead)
{
    const Product now;
    ChangeEverything(now);
    const Product from;
    const auto first = BytesOf(kFirstVersionBlock);
    EXPECT_TRUE(from.model->ImportSettings(first.data(), first.size()));
    EXPECT_EQ(Block(from), Block(now));
}

std::string Replaced(std::string text, std::string_view from, std::string_view to)
{
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

TEST(SettingsBlock, WhatDoesNotFitIsPassedOverAndTheRestKept)
{
    struct Row
    {
        const char* change;
        const char* from;
        const char* to;
        bool keepsCopies;
        std::size_t items;
    };
    // clang-format off
    constexpr Row rows[] = {
        {"nothing", "\"maxItems\": 3", "\"maxItems\": 3", true, 2},
        {"room for one item only", "\"maxItems\": 3", "\"maxItems\": 1", true, 1},
        {"an integer was an option", "\"kind\": \"integer\", \"default\": 1,\n    \"ranges\": [ { \"min\": 1, \"max\": 99 }, { \"min\": 200, \"max\": 999 } ]",
         "\"kind\": \"option\", \"default\": 6001, \"options\": [ { \"enum\": 6001, \"name\": \"x\" } ]", false, 2},
        {"a text was an integer", "\"kind\": \"integer\", \"default\": 1,\n    \"ranges\": [ { \"min\": 1, \"max\": 99 }, { \"min\": 200, \"max\": 999 } ]",
         "\"kind\": \"string\", \"default\": \"\"", false, 2},
        {"a value that is gone", "\"enum\": 6022, \"name\": \"one\"", "\"enum\": 6023, \"name\": \"two\"", true, 2},
        {"items that need a value now", "\"odrv-texts\", \"kind\": \"values\",\n    \"item\": { \"kind\": \"option\"",
         "\"odrv-texts\", \"kind\": \"values\",\n    \"item\": { \"kind\": \"option\", \"flags\": [\"required\"]", true, 2},
    };
    // clang-format on
    const Product from;
    ChangeEverything(from);
    for (const bool first : {false, true}) {
        const auto block = first ? BytesOf(kFirstVersionBlock) : Block(from);
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(row.change) + (first ? ", version 1" : ""));
            const std::string text = Replaced(test::PackageText(), row.from, row.to);
            const Product to(test::Whole{text});
            EXPECT_TRUE(to.model->ImportSettings(block.data(), block.size()));
            EXPECT_EQ(to.All().GetOptionFeature(test::kMedia).GetValue().GetValueName(), L"Bütten");
            EXPECT_EQ(to.All().GetListOfValues(test::kSpecialPages).GetNumItems(), row.items);
            EXPECT_EQ(to.Number(test::kPrivate), 0);
            EXPECT_EQ(to.Number(test::kCopies) == 999, row.keepsCopies);
            EXPECT_EQ(test::Number(to.All().GetListOfFeatures(test::kColour), test::kSaturation),
                      -5);
        }
    }
    // A text that was a number stays empty where the block says of what kind it is.
    const std::string text =
        Replaced(test::PackageText(), "\"kind\": \"string\", \"default\": \"\", \"maxLength\": 8",
                 "\"kind\": \"integer\", \"default\": 4");
    const Product to(test::Whole{text});
    const auto block = Block(from);
    EXPECT_TRUE(to.model->ImportSettings(block.data(), block.size()));
    EXPECT_EQ(to.Number(test::kName), 4);
}

/// The product in its third version: staples are feature 140, which the first version called
/// otherwise, and one staple has another number and name; both old ones belong to others now.
std::string ThirdVersionPackage()
{
    std::string text =
        Replaced(test::PackageText("{ \"id\": \"x\", \"when\": [ { \"feature\": 130, "
                                   "\"is\": [true] } ], \"effect\": { \"feature\": 104, "
                                   "\"kind\": \"info\" }, \"reason\": 60001 }"),
                 "\"uniqueId\"", "\"version\": 3, \"uniqueId\"");
    text = Replaced(
        text, "\"enum\": 102, \"name\": \"odrv-staple\", \"kind\"",
        "\"enum\": 140, \"name\": \"odrv-stitch\", \"former\": [ "
        "{ \"until\": 1, \"name\": \"odrv-staple\" }, { \"until\": 2, \"enum\": 102 } ], \"kind\"");
    text =
        Replaced(text, "{ \"enum\": 6022, \"name\": \"one\" }",
                 "{ \"enum\": 6030, \"name\": \"single\", \"former\": [ { \"until\": 2, \"enum\": "
                 "6022, \"name\": \"one\" } ] }, { \"enum\": 6022, \"name\": \"one\" }");
    return Replaced(text,
                    "\"enum\": 103, \"name\": \"odrv-copies\", \"kind\": \"integer\", \"default\": "
                    "1,\n    \"ranges\"",
                    "\"enum\": 102, \"name\": \"odrv-copies\", \"former\": [ { \"until\": 2, "
                    "\"enum\": 103 } ], "
                    "\"kind\": \"integer\", \"default\": 1,\n    \"ranges\"");
}

constexpr auto kStitch = static_cast<DataModelIds::tagFeatureEnum>(140);
constexpr auto kSingle = static_cast<DataModelIds::tagValueEnum>(6030);

TEST(SettingsBlock, FormerNumbersAreUnderstood)
{
    const Product from;
    ChangeEverything(from);
    const std::string text = ThirdVersionPackage();
    for (const auto& block : {BytesOf(kFirstVersionBlock), Block(from)}) {
        const Product to(test::Whole{text});
        EXPECT_TRUE(to.model->ImportSettings(block.data(), block.size()));
        EXPECT_EQ(to.Get(kStitch), kSingle);
        EXPECT_EQ(to.Number(test::kStaple), 999)
            << "the number of the staples is that of copies now";
    }
    // A block of its own version means what it says.
    const Product now(test::Whole{text});
    now.Set(kStitch, test::kOneStaple);
    now.All().GetIntegerFeature(test::kStaple).SetValue(7);
    now.model->CommitAccepted();
    const auto block = Block(now);
    const Product to(test::Whole{text});
    EXPECT_TRUE(to.model->ImportSettings(block.data(), block.size()));
    EXPECT_EQ(to.Get(kStitch), test::kOneStaple);
    EXPECT_EQ(to.Number(test::kStaple), 7);
}

TEST(SettingsBlock, SecretsGoWithADocumentOnlyAndScrambled)
{
    const std::string text = Replaced(test::PackageText(), "\"maxLength\": 8",
                                      "\"maxLength\": 8, \"flags\": [\"secret\"]");
    const Product from(test::Whole{text});
    from.All().GetStringFeature(test::kName).SetValue(L"4711abc");
    from.model->CommitAccepted();
    const auto block = [&](const Product& product, o7::SettingsScope scope) {
        std::vector<std::uint8_t> bytes;
        EXPECT_TRUE(product.model->ExportSettings(bytes, o7::kSettingsBlockLimit, scope));
        return bytes;
    };
    const auto name = [](const Product& product) {
        CXString value;
        product.All()
            .GetStringFeature(test::kName)
            .GetValue(value, FeatureRef::kAssertIfUnsupported);
        return value;
    };
    const auto document = block(from, o7::SettingsScope::Document);
    const std::string bytes(document.begin(), document.end());
    EXPECT_EQ(bytes.find("4711"), std::string::npos);
    EXPECT_EQ(block(from, o7::SettingsScope::Document), document) << "the same every time";
    const Product fresh(test::Whole{text});
    for (const auto scope : {o7::SettingsScope::Defaults, o7::SettingsScope::All}) {
        EXPECT_EQ(block(from, scope), block(fresh, scope));
        EXPECT_TRUE(fresh.model->ImportSettings(document.data(), document.size(), scope));
        EXPECT_EQ(name(fresh), L"");
    }
    EXPECT_TRUE(
        fresh.model->ImportSettings(document.data(), document.size(), o7::SettingsScope::Document));
    EXPECT_EQ(name(fresh), L"4711abc");
    const auto all = block(from, o7::SettingsScope::All);
    EXPECT_TRUE(fresh.model->ImportSettings(all.data(), all.size()));
    EXPECT_EQ(name(fresh), L"4711abc") << "out of scope, it stays";

    // Documents of earlier versions have it in clear, and so has a package without the flag.
    const auto first = BytesOf(kFirstVersionBlock);
    const Product later(test::Whole{text});
    EXPECT_TRUE(
        later.model->ImportSettings(first.data(), first.size(), o7::SettingsScope::Document));
    EXPECT_EQ(name(later), L"\x4E2D\x6587");
    const Product open;
    EXPECT_TRUE(
        open.model->ImportSettings(document.data(), document.size(), o7::SettingsScope::Document));
    EXPECT_EQ(name(open), L"4711abc");
}

/// A product whose list can be longer than a document has room for.
std::string LongListPackage()
{
    return Replaced(Replaced(test::PackageText(), "\"maxItems\": 3", "\"maxItems\": 1000"),
                    "\"enum\": 103, \"name\": \"odrv-copies\", \"kind\": \"integer\", "
                    "\"default\": 1,\n         \"range\": { \"min\": 1, \"max\": 99 }",
                    "\"enum\": 105, \"name\": \"odrv-name\", \"kind\": \"string\", "
                    "\"default\": \"\", \"maxLength\": 400");
}

TEST(SettingsBlock, RunsOfEqualItemsAreWrittenOnce)
{
    const std::string text = LongListPackage();
    const Product from(test::Whole{text});
    auto pages = from.All().GetListOfValues(test::kSpecialPages);
    for (int i = 0; i < 900; ++i)
        ASSERT_TRUE(pages.CreateListOfFeatures().IsSupported()) << i;
    for (const std::size_t odd : {0U, 450U, 451U, 899U})
        pages.GetListOfFeatures(odd).GetOptionFeature(test::kSides).SetValue(test::kTwoSided);
    from.model->CommitAccepted();
    const auto block = Block(from);
    EXPECT_LT(block.size(), 80U);
    const Product to(test::Whole{text});
    EXPECT_TRUE(to.model->ImportSettings(block.data(), block.size()));
    EXPECT_EQ(to.All().GetListOfValues(test::kSpecialPages).GetNumItems(), 900U);
    EXPECT_EQ(Block(to), block);
}

TEST(SettingsRoom, WhatADocumentCannotCarryIsRefusedWhenItIsAdded)
{
    const std::string text = LongListPackage();
    const Product product(test::Whole{text});
    auto pages = product.All().GetListOfValues(test::kSpecialPages);
    const auto newItem = [&] { return pages.GetListOfValuesCapabilities()->GetNewItemState(); };
    const std::wstring longText(200, L'\x20AC'); // 600 bytes
    std::size_t refusedTexts = 0;
    for (std::size_t i = 0; i < 1000; ++i) {
        EXPECT_FALSE(newItem().IsDisabled()) << i;
        auto page = pages.CreateListOfFeatures();
        if (!page.IsSupported())
            break;
        const bool taken =
            page.GetStringFeature(test::kName).SetValue(CXString(std::wstring_view(longText)));
        refusedTexts += taken ? 0 : 1;
        product.model->CommitAccepted();
        std::vector<std::uint8_t> block;
        ASSERT_TRUE(product.model->ExportSettings(block)) << i;
        if (!taken && newItem().IsDisabled())
            break;
    }
    const std::size_t most = pages.GetNumItems();
    EXPECT_GT(refusedTexts, 0U);
    EXPECT_TRUE(newItem().IsDisabled());
    EXPECT_EQ(newItem().GetReason(), L"#60296");
    EXPECT_FALSE(pages.CreateListOfFeatures().IsSupported());
    // What is taken back needs its room again.
    const auto transaction = product.model->OpenTransaction();
    EXPECT_TRUE(pages.DeleteSpecificItems({0, 1, 2}));
    EXPECT_FALSE(newItem().IsDisabled());
    EXPECT_TRUE(pages.CreateListOfFeatures().IsSupported());
    transaction->Close(false);
    EXPECT_EQ(pages.GetNumItems(), most);
    EXPECT_FALSE(pages.CreateListOfFeatures().IsSupported());

    const Product other(test::Whole{text});
    EXPECT_TRUE(other.All().CopyFrom(product.All())) << "what fits here fits there";
    EXPECT_EQ(other.All().GetListOfValues(test::kSpecialPages).GetNumItems(), most);
}

TEST(SettingsRoom, AFullListSaysSo)
{
    const Product product;
    auto pages = product.All().GetListOfValues(test::kSpecialPages);
    for (int i = 0; i < 3; ++i)
        pages.CreateListOfFeatures();
    const auto capabilities = pages.GetListOfValuesCapabilities();
    EXPECT_EQ(capabilities->GetMaximumItems(), 3U);
    EXPECT_EQ(capabilities->GetNewItemState().GetReason(), L"#60269");
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
    std::ptrdiff_t CountFiles() const
    {
        return std::distance(std::filesystem::directory_iterator(folder), {});
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
    EXPECT_EQ(CountFiles(), 1) << "nothing unfinished is left";

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
    EXPECT_EQ(static_cast<std::size_t>(CountFiles()), std::size(damaged))
        << "none overwrote another";
}

TEST_F(JobTicket, WhatCannotBeReadNowIsLeftAlone)
{
    // Something that is there and does not open as a file stands for one that somebody holds.
    std::filesystem::create_directory(file);
    const Product product;
    product.Set(test::kMedia, test::kFilm);
    const auto result = product.model->LoadJobTicket(file);
    EXPECT_EQ(result.outcome, o7::JobTicketOutcome::Unreadable);
    EXPECT_FALSE(result.message.empty());
    EXPECT_TRUE(std::filesystem::is_directory(file));
    EXPECT_EQ(product.Get(test::kMedia), test::kFilm);

    // Whoever held it is done: its settings are not replaced by those of somebody who never saw
    // them.
    std::filesystem::remove(file);
    product.model->CommitAccepted();
    EXPECT_TRUE(Product().model->SaveJobTicket(file, message)) << message;
    const std::string text = Text();
    EXPECT_FALSE(product.model->SaveJobTicket(file, message));
    EXPECT_NE(message.find("settings.json"), std::string::npos);
    EXPECT_EQ(Text(), text);
    EXPECT_TRUE(product.model->SaveJobTicket(folder / "another.json", message));
    EXPECT_EQ(product.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
    EXPECT_TRUE(product.model->SaveJobTicket(file, message)) << message;
}

TEST_F(JobTicket, NothingComesInWhileATransactionIsOpen)
{
    const Product product;
    product.Set(test::kMedia, test::kFilm);
    product.model->CommitAccepted();
    ASSERT_TRUE(product.model->SaveJobTicket(file, message));
    const auto block = Block(product);
    product.Set(test::kMedia, test::kPlain);
    product.model->CommitAccepted();
    {
        const auto transaction = product.model->OpenTransaction();
        EXPECT_FALSE(product.model->ImportSettings(block.data(), block.size()));
        EXPECT_EQ(product.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Unreadable);
        EXPECT_EQ(product.Get(test::kMedia), test::kPlain);
    }
    EXPECT_FALSE(product.model->IsModified());
    EXPECT_EQ(product.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
    EXPECT_EQ(product.Get(test::kMedia), test::kFilm);
}

TEST_F(JobTicket, ManyMayWriteAndReadAtOnce)
{
    ASSERT_TRUE(Product().model->SaveJobTicket(file, message));
    std::atomic<int> refused = 0;
    std::atomic<int> unread = 0;
    const auto work = [&](bool writes) {
        const Product product;
        std::string why;
        for (int i = 0; i < 20; ++i) {
            if (writes)
                refused += product.model->SaveJobTicket(file, why) ? 0 : 1;
            else
                unread += product.model->LoadJobTicket(file).outcome == o7::JobTicketOutcome::Loaded
                              ? 0
                              : 1;
        }
    };
    std::vector<std::thread> programs;
    for (const bool writes : {true, true, true, false, true})
        programs.emplace_back(work, writes);
    for (std::thread& program : programs)
        program.join();
    EXPECT_EQ(refused, 0);
    EXPECT_EQ(unread, 0);
    EXPECT_EQ(CountFiles(), 1);
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

TEST_F(JobTicket, HoldsNoSecretAndDropsThatOfEarlierVersions)
{
    const Product before;
    before.All().GetStringFeature(test::kName).SetValue(L"4711");
    before.model->CommitAccepted();
    ASSERT_TRUE(before.model->SaveJobTicket(file, message));
    ASSERT_NE(Text().find("4711"), std::string::npos);

    const std::string package = Replaced(test::PackageText(), "\"maxLength\": 8",
                                         "\"maxLength\": 8, \"flags\": [\"secret\"]");
    const Product after(test::Whole{package});
    EXPECT_EQ(after.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
    CXString value;
    after.All().GetStringFeature(test::kName).GetValue(value, FeatureRef::kAssertIfUnsupported);
    EXPECT_EQ(value, L"");
    after.All().GetStringFeature(test::kName).SetValue(L"5822");
    after.model->CommitAccepted();
    ASSERT_TRUE(after.model->SaveJobTicket(file, message));
    EXPECT_EQ(Text().find("4711"), std::string::npos);
    EXPECT_EQ(Text().find("5822"), std::string::npos);
}

TEST_F(JobTicket, FormerNamesAreUnderstood)
{
    const Product from;
    ChangeEverything(from);
    ASSERT_TRUE(from.model->SaveJobTicket(file, message));
    const std::string package = ThirdVersionPackage();
    const Product to(test::Whole{package});
    EXPECT_EQ(to.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
    EXPECT_EQ(to.Get(kStitch), kSingle);
    EXPECT_EQ(to.Number(test::kStaple), 999);
    to.Set(kStitch, test::kOneStaple);
    to.model->CommitAccepted();
    ASSERT_TRUE(to.model->SaveJobTicket(file, message));
    EXPECT_EQ(Text().find("odrv-staple"), std::string::npos) << "it has a new name";
    const Product again(test::Whole{package});
    EXPECT_EQ(again.model->LoadJobTicket(file).outcome, o7::JobTicketOutcome::Loaded);
    EXPECT_EQ(again.Get(kStitch), test::kOneStaple);
}

TEST_F(JobTicket, AListThatBecameShorterKeepsItsFirstItems)
{
    const Product from;
    ChangeEverything(from);
    ASSERT_TRUE(from.model->SaveJobTicket(file, message));
    const std::string package = Replaced(test::PackageText(), "\"maxItems\": 3", "\"maxItems\": 1");
    const Product to(test::Whole{package});
    const auto result = to.model->LoadJobTicket(file);
    EXPECT_EQ(result.outcome, o7::JobTicketOutcome::Loaded);
    EXPECT_EQ(to.All().GetListOfValues(test::kSpecialPages).GetNumItems(), 1U);
    EXPECT_NE(result.message.find("odrv-special-pages"), std::string::npos);
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
