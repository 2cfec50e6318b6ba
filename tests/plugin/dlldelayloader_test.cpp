#include "dlldelayloader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "exceptiondelayloaddllloadfailure.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;

constexpr wchar_t kMissing[] = L"o7-there-is-no-such-module.dll";

TEST(DllDelayLoader, TakesAModuleFromItsOwnFolder)
{
    DllDelayLoader loader(kUtilModule);
    HMODULE module = loader.load();
    ASSERT_NE(module, nullptr);
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(module, path, MAX_PATH);
    EXPECT_TRUE(fs::equivalent(path, fs::path(folderOfThisModule()) / kUtilModule));
    EXPECT_EQ(loader.load(), module);
}

TEST(DllDelayLoader, DoesNotTakeAFilePlantedInTheWorkingDirectory)
{
    const fs::path before = fs::current_path();
    const fs::path folder = fs::temp_directory_path() / L"o7-delayload-test";
    fs::create_directories(folder);
    fs::copy_file(fs::path(folderOfThisModule()) / kUtilModule, folder / kMissing,
                  fs::copy_options::overwrite_existing);
    fs::current_path(folder);
    DllDelayLoader loader(kMissing);
    EXPECT_EQ(loader.load(), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
    try {
        loader.loadOrThrow();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const ExceptionDelayLoadDllLoadFailure& error) {
        EXPECT_NE(std::string(error.what()).find("o7-there-is-no-such-module"), std::string::npos);
        EXPECT_STREQ(error.GetFunction().c_str(), L"DllDelayLoader::loadOrThrow");
    }
    fs::current_path(before);
    fs::remove_all(folder);
}

} // namespace
} // namespace o7
