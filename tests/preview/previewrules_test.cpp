#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "picturefilename.h"
#include "previewoptions.h"
#include "productcatalogue.h"

namespace {

using Words = std::vector<std::wstring>;

struct RefusedRow
{
    const char* name;
    Words words;
    const wchar_t* expectedInError;
};

const RefusedRow kRefused[] = {
    {"unknown option", {L"--prodct", L"x"}, L"Unknown option \"--prodct\""},
    {"word without option", {L"office"}, L"Unknown option \"office\""},
    {"value missing at the end", {L"--mode"}, L"--mode needs a value"},
    {"value empty", {L"--shots="}, L"not empty"},
    {"package empty", {L"--check="}, L"not empty"},
    {"mode 0", {L"--mode", L"0"}, L"a number from 1 to 4, found \"0\""},
    {"mode 5", {L"--mode=5"}, L"a number from 1 to 4"},
    {"mode with a sign", {L"--mode", L"+1"}, L"a number from 1 to 4"},
    {"mode with a tail", {L"--mode", L"1x"}, L"a number from 1 to 4"},
    {"entry", {L"--entry", L"Sheet"}, L"sheet, cpsui, dialog or child"},
    {"language as a path", {L"--lang", L"..\\de"}, L"a language such as"},
    {"language too short", {L"--lang", L"d"}, L"a language such as"},
    {"longer texts of the plug-in", {L"--longer", L"--entry", L"cpsui"}, L"not go with"},
    {"mirrored without gallery", {L"--mirrored"}, L"go with --gallery"},
    {"classic without gallery", {L"--classic", L"--mode=2"}, L"go with --gallery"},
    {"story without a file", {L"--story", L"--products", L"d"}, L"--story needs a value"},
    {"story and product", {L"--product", L"p", L"--story", L"a"}, L"goes with --products only"},
    {"story and pictures", {L"--story", L"a", L"b", L"--shots=d"}, L"goes with --products only"},
    {"flag with a value", {L"--gallery=1"}, L"Unknown option \"--gallery\""},
    {"family beyond any number", {L"--family", L"84308430843084"}, L"a number such as 8430"},
};

TEST(PreviewOptions, BadWordsGetASentenceThatNamesThem)
{
    for (const RefusedRow& row : kRefused) {
        const o7::ParsedOptions parsed = o7::parsePreviewOptions(row.words);
        EXPECT_NE(parsed.error.find(row.expectedInError), std::wstring::npos) << row.name;
    }
}

TEST(PreviewOptions, StoriesAreAllFilesUpToTheNextOption)
{
    const Words words{L"--story", L"a.story", L"-b.story", L"--products", L"d"};
    const auto [options, error] = o7::parsePreviewOptions(words);
    EXPECT_TRUE(error.empty());
    EXPECT_EQ(options.stories, (Words{L"a.story", L"-b.story"}));
    EXPECT_EQ(options.productsDirectory, L"d");
}

TEST(PreviewOptions, BothSpellingsAreTheSame)
{
    const Words apart{L"--product", L"p",  L"--mode",     L"2", L"--entry",    L"child",
                      L"--lang",    L"de", L"--user-dir", L"u", L"--products", L"d"};
    const Words joined{L"--product=p", L"--mode=2",     L"--entry=child",
                       L"--lang=de",   L"--user-dir=u", L"--products=d"};
    for (const Words& words : {apart, joined}) {
        const auto [options, error] = o7::parsePreviewOptions(words);
        EXPECT_TRUE(error.empty());
        EXPECT_EQ(options.product, L"p");
        EXPECT_EQ(options.productsDirectory, L"d");
        EXPECT_EQ(options.mode, 2);
        EXPECT_EQ(options.entry, o7::PreviewEntry::Child);
        EXPECT_EQ(options.language, L"de");
        EXPECT_EQ(options.userDirectory, L"u");
        EXPECT_FALSE(options.unattended());
    }
}

TEST(PreviewOptions, FlagsStandAloneInAnyOrder)
{
    const auto [options, error] =
        o7::parsePreviewOptions(Words{L"--mirrored", L"--shots", L"d", L"--gallery"});
    EXPECT_TRUE(error.empty());
    EXPECT_TRUE(options.gallery);
    EXPECT_TRUE(options.mirrored);
    EXPECT_FALSE(options.classic);
    EXPECT_EQ(options.shotsDirectory, L"d");
    EXPECT_FALSE(o7::parsePreviewOptions(Words{}).options.gallery);
}

TEST(PreviewOptions, DialogEntryOpensTheModeThatHasOne)
{
    const auto mode = [](const Words& words) {
        return o7::parsePreviewOptions(words).options.effectiveMode();
    };
    EXPECT_EQ(mode({}), 1);
    EXPECT_EQ(mode({L"--entry", L"dialog"}), 3);
    EXPECT_EQ(mode({L"--entry", L"dialog", L"--mode", L"1"}), 1);
}

TEST(PreviewOptions, PicturesOrSnapshotMeanThatNobodyWatches)
{
    EXPECT_TRUE(o7::parsePreviewOptions(Words{L"--shots", L"d"}).options.unattended());
    EXPECT_TRUE(o7::parsePreviewOptions(Words{L"--snapshot", L"f"}).options.unattended());
}

class ProductFolders : public testing::Test
{
protected:
    ProductFolders()
    {
        std::filesystem::remove_all(m_root);
        addPackage("zebra");
        addPackage("alpha");
        std::filesystem::create_directories(m_root / "no-package");
        std::ofstream(m_root / "package.json") << "{}";
    }
    ~ProductFolders() override { std::filesystem::remove_all(m_root); }

    void addPackage(const char* name) const
    {
        std::filesystem::create_directories(m_root / name);
        std::ofstream(m_root / name / "package.json") << "{}";
    }

    const std::filesystem::path m_root =
        std::filesystem::temp_directory_path() / "o7-product-catalogue-test";
};

TEST_F(ProductFolders, OnlyListedNamesAreFound)
{
    const o7::ProductCatalogue catalogue(m_root);
    EXPECT_EQ(catalogue.names(), (Words{L"alpha", L"zebra"}));
    EXPECT_EQ(catalogue.find(L""), m_root / "alpha");
    EXPECT_EQ(catalogue.find(L"zebra"), m_root / "zebra");
    for (const wchar_t* unknown : {L"no-package", L".", L"..", L"alpha/../zebra"}) {
        EXPECT_FALSE(catalogue.find(unknown));
    }
    const std::wstring text = catalogue.unknownProductText(L"beta");
    EXPECT_NE(text.find(L"\"beta\""), std::wstring::npos);
    EXPECT_NE(text.find(L"alpha\n  zebra"), std::wstring::npos);
}

TEST_F(ProductFolders, MissingFolderIsSaid)
{
    const o7::ProductCatalogue catalogue(m_root / "nowhere");
    EXPECT_FALSE(catalogue.find(L""));
    EXPECT_NE(catalogue.unknownProductText(L"x").find(L"nowhere"), std::wstring::npos);
}

TEST(PictureFileName, EveryTitleGivesAUsableName)
{
    EXPECT_EQ(o7::pictureFileName(1, L"Paper and output"), L"01-Paper-and-output.png");
    EXPECT_EQ(o7::pictureFileName(2, L"Paper/Output"), L"02-Paper-Output.png");
    EXPECT_EQ(o7::pictureFileName(12, L"A/B\\C: D?*"), L"12-A-B-C-D.png");
    EXPECT_EQ(o7::pictureFileName(3, L"..\t"), L"03-page.png");
    EXPECT_EQ(o7::pictureFileName(4, L"Tr\u00e4ger"), L"04-Tr\u00e4ger.png");
}

} // namespace
