#include "cxstringprinter.h"
#include "operatingsystem.h"
#include "programfolder.h"

#include <gtest/gtest.h>

#include <utility>

#include <windows.h>

namespace {

TEST(OperatingSystem, LoadsLibrariesFromTheSystemDirectoryAlone)
{
    // A library beside the program, which the plain call would take.
    const CXString planted = programFolder() + L"\\o7planted.dll";
    const CXString real = programFolder() + L"\\util_test_product\\strings-en.dll";
    ASSERT_TRUE(CopyFileW(real.c_str(), planted.c_str(), FALSE));
    HMODULE taken = LoadLibraryExW(L"o7planted.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    EXPECT_NE(taken, nullptr);
    FreeLibrary(taken);
    EXPECT_FALSE(OperatingSystem::LoadSystemLibrary(L"o7planted.dll"));
    EXPECT_FALSE(OperatingSystem::LoadSystemLibrary(planted));
    EXPECT_FALSE(OperatingSystem::LoadSystemLibrary(L""));
    EXPECT_TRUE(DeleteFileW(planted.c_str()));
}

TEST(OperatingSystem, LibraryIsFreedWithItsOwner)
{
    constexpr const wchar_t* kName = L"msimg32.dll";
    ASSERT_EQ(GetModuleHandleW(kName), nullptr) << "choose a library that nothing else loads";
    {
        SystemLibrary first = OperatingSystem::LoadSystemLibrary(kName);
        ASSERT_TRUE(first);
        EXPECT_NE(first.function<void (*)()>("TransparentBlt"), nullptr);
        EXPECT_EQ(first.function<void (*)()>("NoSuchFunction"), nullptr);
        SystemLibrary second(std::move(first));
        EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
        first = std::move(second);
        EXPECT_TRUE(first);
    }
    EXPECT_EQ(GetModuleHandleW(kName), nullptr);
    EXPECT_EQ(SystemLibrary(L"o7nowhere.dll").function<void (*)()>("x"), nullptr);
}

} // namespace
