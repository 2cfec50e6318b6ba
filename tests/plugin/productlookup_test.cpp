#include "productlookup.h"

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

namespace o7 {
namespace {

namespace fs = std::filesystem;

struct Row
{
    const char* name;
    std::vector<const wchar_t*> files;
    const wchar_t* dataFile;
    const wchar_t* found;
};

constexpr auto kA = L"products/a/package.json";
constexpr auto kB = L"products/b/package.json";
constexpr auto kFlat = L"package.json";

TEST(ProductLookup, TakesThePackageThatIsMeant)
{
    const Row rows[] = {
        {"no package", {L"o7plimQK.dll"}, L"", L""},
        {"the first of several", {kB, kA}, L"", kA},
        {"the flat one before others", {kA, kFlat}, L"C:/drivers/package.json", kFlat},
        {"the driver's data file", {kA, kB, kFlat}, L"C:/drivers/b.dat", kB},
    };
    const fs::path folder = fs::temp_directory_path() / L"o7-product-lookup-test";
    for (const Row& row : rows) {
        fs::remove_all(folder);
        for (const wchar_t* file : row.files) {
            fs::create_directories((folder / file).parent_path());
            std::ofstream(folder / file) << "{}";
        }
        const fs::path expected = *row.found == L'\0' ? fs::path() : folder / row.found;
        EXPECT_EQ(findPackage(folder, row.dataFile), expected) << row.name;
    }
    fs::remove_all(folder);
}

} // namespace
} // namespace o7
