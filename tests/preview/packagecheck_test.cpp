#include "packagecheck.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "pagecheck.h"
#include "productfolders.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;

std::string all(const std::vector<PackageError>& errors)
{
    std::string text;
    for (const PackageError& error : errors) {
        text += error.ToString() + "\n";
    }
    return text;
}

/// A package of our own making in a folder of its own.
class FaultyPackage : public testing::Test
{
protected:
    FaultyPackage()
    {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder / "strings");
        write("shared.rc", "STRINGTABLE\nBEGIN\n    23002 \"Paper size\"\nEND\n");
    }
    ~FaultyPackage() override { fs::remove_all(m_folder); }

    void write(const char* script, const std::string& text) const
    {
        std::ofstream(m_folder / "strings" / script) << text;
    }
    void writeTexts(const char* language, const std::string& rows) const
    {
        write((std::string(language) + ".rc").c_str(),
              "#include \"shared.rc\"\nSTRINGTABLE\nBEGIN\n" + rows + "END\n");
    }
    void writePackage(const std::string& features, const std::string& constraints) const
    {
        std::ofstream(m_folder / "package.json")
            << "{ \"formatVersion\": 1, \"product\": { \"id\": \"p\", \"modelName\": \"P\",\n"
               "  \"uniqueId\": \"P\", \"controllerFamily\": 8430, \"languages\": [\"en\", \"de\"] "
               "},\n"
               "  \"features\": [\n"
            << features << "],\n  \"constraints\": [\n"
            << constraints << "] }\n";
    }

    /// Every row must be in the text.
    static void expectIn(const std::string& text, const std::vector<const char*>& rows)
    {
        for (const char* row : rows) {
            EXPECT_NE(text.find(row), std::string::npos) << row << "\n--- in\n" << text;
        }
    }

    const fs::path m_folder = fs::temp_directory_path() / "o7-package-check-test";
};

constexpr char kPaper[] = R"({ "enum": 3002, "name": "odrv-paper-size", "kind": "option",
  "default": "a4", "options": [{ "enum": 5111, "name": "a4" }, { "enum": 5999, "name": "odd" }] })";

TEST_F(FaultyPackage, IsToldEveryMistakeAtOnceWithFileAndLine)
{
    writePackage(std::string(kPaper) + R"(,
{ "enum": 3002, "name": "odrv-again", "kind": "boolean", "default": true }
)",
                 R"({ "id": "x", "when": [{ "feature": 9, "is": [1] }],
  "effect": { "feature": 3002, "kind": "disable" }, "reason": 60300 })");
    writeTexts("en", "    45111 \"A4\"\n    45999 \"\"\n    O7STR_L_COLLATE \"&Collate copies\"\n"
                     "    O7STR_L_PAPER_SIZE \"Paper &size:\"\n"
                     "    60300 \"{0} is on.\"\n    60301 \"Nobody needs this.\"\n");
    writeTexts("de", "    45111 \"A4\"\n    45111 \"A4 noch einmal\"\n    O7STR_NO_NAME \"x\"\n"
                     "    O7STR_L_COLLATE \"&Sortieren\"\n    no text\n"
                     "    O7STR_L_PAPER_SIZE \"&Papier:\"\n"
                     "    60300 \"{1} geht nicht.\"\n");
    const PackageReport report = checkPackage(m_folder);
    EXPECT_TRUE(report.found);
    expectIn(all(report.mistakes),
             {"package.json:6: the number of feature 3002", "package.json:9: unknown feature 9",
              "en.rc:5: text 45999, the name of value 5999, is empty",
              "de.rc:5: text 45111 is there already, in de.rc line 4",
              "de.rc:6: \"O7STR_NO_NAME\" is neither a number nor a name of one",
              "de.rc:8: \"no\" is neither a number nor a name",
              "de.rc:10: \"{1} geht nicht.\" has the placeholder {1}",
              "de.rc: text 45999, the name of value 5999, is missing in \"de\"",
              "en.rc: text 30010 of the pages, is missing in \"en\"",
              "of family 8430 shows feature 3003"});
    expectIn(all(report.hints), {"en.rc:9: nothing shows reason 60301"});
}

TEST_F(FaultyPackage, IsToldOfRulesThatCannotBeMeant)
{
    writePackage(kPaper, R"({ "id": "never-odd", "when": [{ "feature": 3002, "is": ["a4"] }],
  "effect": { "feature": 3002, "options": ["odd"], "kind": "disable" }, "reason": 60300 },
{ "id": "never-odd-either", "when": [{ "feature": 3002, "isNot": ["a4"] }],
  "effect": { "feature": 3002, "options": ["odd"], "kind": "disable" }, "reason": 60300 })");
    const PackageReport report = checkPackage(m_folder);
    expectIn(all(report.mistakes), {"package.json", "unreachable option", "en.rc: cannot be read"});
}

TEST_F(FaultyPackage, IsToldOfValuesThatTheDeviceLeavesInForce)
{
    struct Row
    {
        const char* effect;
        bool told;
    };
    constexpr Row rows[] = {
        {R"("feature": 3005, "kind": "disable")", true},
        {R"("feature": 3005, "kind": "hide")", true},
        {R"("feature": 3005, "kind": "clear")", false},
        {R"("feature": 3005, "options": ["two-sided"], "kind": "disable")", false},
    };
    for (const Row& row : rows) {
        writePackage(
            R"({ "enum": 3046, "name": "odrv-installed-unit", "kind": "boolean", "default": true },
{ "enum": 3005, "name": "odrv-sides", "kind": "option", "default": "one-sided",
  "options": [{ "enum": 5140, "name": "one-sided" }, { "enum": 5141, "name": "two-sided" }] })",
            std::string(R"({ "id": "no-unit", "when": [{ "feature": 3046, "is": [false] }],
  "effect": { )") +
                row.effect + R"( }, "reason": 60300 })");
        const std::string mistakes = all(checkPackage(m_folder).mistakes);
        EXPECT_EQ(
            mistakes.find("no-unit: with odrv-installed-unit false, odrv-sides stays two-sided") !=
                std::string::npos,
            row.told)
            << row.effect << "\n"
            << mistakes;
    }
}

TEST_F(FaultyPackage, IsToldOfDeviceSettingsOnPagesOfDocuments)
{
    writePackage(
        R"({ "enum": 3002, "name": "odrv-paper-size", "kind": "option", "flags": ["device"],
  "default": "a4", "options": [{ "enum": 5111, "name": "a4" }] },
{ "enum": 3041, "name": "odrv-installed-trays", "kind": "boolean" })",
        "");
    const std::string mistakes = all(checkPackage(m_folder).mistakes);
    for (const char* mode : {"mode 1", "mode 3", "mode 4"}) {
        expectIn(mistakes, {("shows feature 3002 (\"#23002\") in " + std::string(mode) +
                             ", but it belongs to the device")
                                .c_str()});
    }
    EXPECT_EQ(mistakes.find("shows feature 3041"), std::string::npos) << "its place is in mode 2";
}

TEST_F(FaultyPackage, IsToldOfKeysThatCannotBeUsed)
{
    struct Row
    {
        const char* label;
        const char* expected;
    };
    constexpr Row rows[] = {
        {"Paper &tray size:", "shares the key t with"},
        {"P&aper size:", "the key A belongs to Apply"},
        {"Gr&\xC3\xB6\xC3\x9F"
         "e:",
         "not every keyboard has the key \xC3\xB6"},
    };
    writePackage(kPaper, "");
    for (const Row& row : rows) {
        writeTexts("en", "    O7STR_L_PAPER_TRAY \"Paper &tray:\"\n    O7STR_L_PAPER_SIZE \"" +
                             std::string(row.label) + "\"\n");
        expectIn(all(checkPackage(m_folder).mistakes), {row.expected});
    }
}

TEST_F(FaultyPackage, ThatIsNoPackageIsSaid)
{
    EXPECT_FALSE(checkPackage(m_folder).found);
    std::ofstream(m_folder / "package.json") << "{\n  \"product\": {,\n}\n";
    writeTexts("de", "    no text\n");
    const PackageReport report = checkPackage(m_folder / "package.json");
    EXPECT_TRUE(report.found);
    expectIn(all(report.mistakes), {"package.json:2:", "de.rc:4: \"no\" is neither"});
}

TEST(Mnemonics, AreWholeCharacters)
{
    EXPECT_EQ(mnemonicOf("Co&Py && &x"), "p");
    EXPECT_EQ(mnemonicOf("R&&D"), "");
    EXPECT_EQ(mnemonicOf("none&"), "");
    EXPECT_EQ(mnemonicOf("&\xC3\x84ndern"), "\xC3\x84");
}

class EveryProduct : public testing::TestWithParam<fs::path>
{
};

TEST_P(EveryProduct, PassesTheCheck)
{
    const PackageReport report = checkPackage(GetParam());
    EXPECT_TRUE(report.found);
    EXPECT_EQ(all(report.mistakes), "");
    EXPECT_EQ(all(report.hints), "");
}

INSTANTIATE_TEST_SUITE_P(Products, EveryProduct, testing::ValuesIn(test::productFolders()),
                         test::productTestName);

} // namespace
} // namespace o7
