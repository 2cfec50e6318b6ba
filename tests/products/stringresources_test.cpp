// What the resource compiler made of the scripts: every text comes out of the language's DLL as it
// was written, umlauts included.

#include "officec430.h"
#include "productstringloader.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

CXString builtProductFolder()
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const auto folder = std::filesystem::path(program).parent_path() / L"products" / L"office-c430";
    return CXString(folder.c_str());
}

TEST(StringResources, HoldEveryTextAsWritten)
{
    for (const char* language : o7::kLanguages) {
        const ProductStringLoader loader(8430, builtProductFolder(), CXString(language));
        ASSERT_EQ(loader.GetLanguage().ToUtf8(), language);
        const auto written = o7::officeC430Strings(language);
        ASSERT_GT(written.size(), 200U);
        for (const auto& [number, text] : written)
            EXPECT_EQ(loader.LoadStringW(number).ToUtf8(), text) << language << " " << number;
    }
}

} // namespace
