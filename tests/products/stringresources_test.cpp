// What the resource compiler made of the scripts: every text comes out of the language's DLL as it
// was written, umlauts included.

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

} // namespace
