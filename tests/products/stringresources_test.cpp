// What the build made of the products: every text comes out of the language's DLL as it was
// written, umlauts included, and the files that a package names are there.

#include "datamodelfactory.h"
#include "productdata.h"
#include "products.h"
#include "productstringloader.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

CXString builtProductFolder(const char* product)
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const auto folder = std::filesystem::path(program).parent_path() / L"products" / product;
    return CXString(folder.c_str());
}

TEST(StringResources, HoldEveryTextAsWritten)
{
    for (const auto& product : o7::kProducts) {
        for (const char* language : o7::kLanguages) {
            const ProductStringLoader loader(product.family, builtProductFolder(product.name),
                                             CXString(language));
            ASSERT_EQ(loader.GetLanguage().ToUtf8(), language) << product.name;
            const auto written = o7::productStrings(product.name, language);
            ASSERT_GT(written.size(), 1000U);
            for (const auto& [number, text] : written)
                EXPECT_EQ(loader.LoadStringW(number).ToUtf8(), text)
                    << product.name << ' ' << language << ' ' << number;
        }
    }
}

TEST(BuiltProducts, HaveTheFilesThatTheyName)
{
    for (const auto& product : o7::kProducts) {
        SCOPED_TRACE(product.name);
        const CXString folder = builtProductFolder(product.name);
        std::vector<o7::PackageError> errors;
        const auto package = o7::LoadProductPackage(folder.c_str(), errors);
        ASSERT_TRUE(package);
        const ProductData data(folder, package->GetProductInfo());
        ByteBuffer file;
        if (O7_WITH_HELP) {
            ASSERT_TRUE(data.LoadFile(InfoType::HelpFile, file));
            EXPECT_EQ(std::string(file.data(), file.data() + 4),
                      "ITSF"); // how compiled help begins
        }
        EXPECT_TRUE(data.LoadFile(InfoType::UrlFile, file));
        CXString pictures;
        ASSERT_TRUE(data.GetPath(InfoType::ResourceFolder, pictures));
        EXPECT_TRUE(
            std::filesystem::exists(std::filesystem::path(pictures.c_str()) / L"device.gif"));
    }
}

} // namespace
