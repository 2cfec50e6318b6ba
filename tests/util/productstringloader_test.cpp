#include "cxstringprinter.h"
#include "productstringloader.h"
#include "programfolder.h"
#include "resourceguard.h"
#include "textresourceloader.h"

#include <gtest/gtest.h>

#include <utility>

#include <windows.h>

namespace {

CXString productFolder()
{
    return programFolder() + L"\\util_test_product";
}

TEST(TextResourceLoader, GivesTheTextOrItsNumber)
{
    const TextResourceLoader loader(GetModuleHandleW(nullptr));
    EXPECT_EQ(loader.LoadStringW(100), L"Paper");
    EXPECT_EQ(loader.LoadStringW(101), L"Papiergr\u00F6\u00DFe");
    EXPECT_EQ(loader.LoadStringW(102), L"#102");           // in the same block, but empty
    EXPECT_EQ(loader.LoadStringW(4000), L"#4000");         // no such block
    EXPECT_EQ(loader.LoadStringW(65536 + 100), L"#65636"); // not text 100
}

TEST(ProductStringLoader, TakesTheLanguageAskedForOrEnglish)
{
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"de", L"de"}, {L"en", L"en"}, {L"xx", L"en"}, {L"", L"en"}, {L"..\\strings-de", L"en"}};
    for (const auto& [asked, taken] : rows) {
        const ProductStringLoader loader(8430, productFolder(), asked);
        const bool isGerman = loader.GetLanguage() == L"de";
        EXPECT_EQ(loader.GetLanguage(), taken) << CXString(asked).ToUtf8();
        EXPECT_EQ(loader.GetStringForFeature(285), isGerman ? L"Steuerger\u00E4t" : L"Controller");
        EXPECT_EQ(loader.LoadStringW(7), isGerman ? L"#7" : L"Only in English");
    }
    const ProductStringLoader german(8430, productFolder(), L"de");
    EXPECT_EQ(german.GetStringForValue(9579), L"Eigenes Papier");
    EXPECT_EQ(german.GetStringForValue(1), L"#40001");
    EXPECT_EQ(german.GetStringForFeature(-1), L"#19999");
    const ProductStringLoader none(8430, productFolder() + L"\\nowhere", L"de");
    EXPECT_TRUE(none.GetLanguage().IsEmpty());
    EXPECT_EQ(none.LoadStringW(100), L"#100"); // not the program's own text
}

TEST(ProductStringLoader, LeavesNothingBehind)
{
    const CXString folder = productFolder();
    const auto useOnce = [&folder] {
        const ProductStringLoader loader(8430, folder, L"de");
        EXPECT_EQ(loader.GetStringForValue(9579), L"Eigenes Papier");
    };
    useOnce();
    const o7::test::ResourceGuard guard;
    for (int i = 0; i < 20; ++i) {
        useOnce();
    }
    // Freed, so the file can be opened for writing.
    HANDLE file = CreateFileW((folder + L"\\strings-de.dll").c_str(), GENERIC_WRITE, 0, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE);
    CloseHandle(file);
}

} // namespace
