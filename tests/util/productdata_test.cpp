#include "cxstringprinter.h"
#include "orvikutilities.h"
#include "productdata.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <utility>

namespace {

namespace fs = std::filesystem;

class ProductFolder : public testing::Test
{
protected:
    ProductFolder() : m_folder(fs::temp_directory_path() / "o7-productdata-test")
    {
        fs::create_directories(m_folder / "pictures");
        write("links.txt", "<1>x");
        write("empty.chm", "");
    }
    ~ProductFolder() override
    {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    void write(const char* name, const std::string& text) const
    {
        std::ofstream(m_folder / name, std::ios::binary) << text;
    }

    CXString folder() const { return CXString(std::wstring_view(m_folder.wstring())); }

    fs::path m_folder;
};

ProductInfo sampleInfo()
{
    ProductInfo info;
    info.languages = {L"en", L"de"};
    info.urlFile = L"links.txt";
    info.helpFile = L"empty.chm";
    info.resourceFolder = L"pictures";
    return info;
}

TEST_F(ProductFolder, GivesWhatThePackageSays)
{
    const ProductData product(folder(), sampleInfo());
    CXString info;
    EXPECT_TRUE(product.GetInfo(InfoType::Languages, info));
    EXPECT_EQ(info, L"en,de");
    EXPECT_TRUE(product.GetPath(InfoType::UrlFile, info));
    EXPECT_TRUE(fs::equivalent(fs::path(info.c_str()), m_folder / "links.txt"));
    EXPECT_FALSE(product.GetPath(InfoType::ModelName, info));
    EXPECT_FALSE(product.GetInfo(static_cast<InfoType>(999), info));
}

TEST_F(ProductFolder, LoadsWholeFilesOrNothing)
{
    ByteBuffer contents(CXString(L"kept"));
    ProductInfo info = sampleInfo();
    EXPECT_FALSE(ProductData(folder(), info).LoadFile(InfoType::ResourceFolder, contents));
    info.urlFile = L"missing.txt";
    EXPECT_FALSE(ProductData(folder(), info).LoadFile(InfoType::UrlFile, contents));
    EXPECT_FALSE(ProductData(folder(), info).LoadFile(InfoType::ModelName, contents));
    EXPECT_EQ(contents.getAsStringValue(), L"kept");

    EXPECT_TRUE(ProductData(folder(), info).LoadFile(InfoType::HelpFile, contents));
    EXPECT_TRUE(contents.empty());
    const std::string large(100'000, 'x');
    write("large.txt", large);
    info.urlFile = L"large.txt";
    ASSERT_TRUE(ProductData(folder(), info).LoadFile(InfoType::UrlFile, contents));
    EXPECT_EQ(std::string(contents.bytes().begin(), contents.bytes().end()), large);
}

TEST_F(ProductFolder, StaysInsideItsFolder)
{
    for (const wchar_t* const name :
         {L"../links.txt", L"pictures/../../x", L"..\\x", L"/etc/passwd", L"\\\\host\\share",
          L"C:\\x", L"C:x", L"links.txt:stream", L"..", L""}) {
        ProductInfo info = sampleInfo();
        info.urlFile = name;
        CXString path(L"kept");
        EXPECT_FALSE(ProductData(folder(), info).GetPath(InfoType::UrlFile, path));
        EXPECT_EQ(path, L"kept") << CXString(name).ToUtf8();
    }
}

TEST(OrvikUtilities, PrinterNamesBecomeKeysAndComeBack)
{
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"Office", L"Office"},
        {L"\\\\server\\Colour 2", L"%5C%5Cserver%5CColour 2"},
        {L"50% grey", L"50%25 grey"},
        {L"%5C", L"%255C"},
        {L"%\\%", L"%25%5C%25"},
        {L"%", L"%25"},
        {L"", L"%"}};
    std::set<CXString> keys;
    for (const auto& [name, expected] : rows) {
        const CXString key = OrvikUtilities::ConvertPrinterNameToRegistryKey(name);
        EXPECT_EQ(key, expected);
        EXPECT_EQ(OrvikUtilities::ConvertRegistryKeyToPrinterName(key), name);
        EXPECT_TRUE(keys.insert(key).second);
    }
}

} // namespace
