#include "productlookup.h"

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

namespace o7 {
namespace {

namespace fs = std::filesystem;

class ProductLookup : public testing::Test
{
protected:
    ProductLookup() { fs::remove_all(m_folder); }
    ~ProductLookup() override { fs::remove_all(m_folder); }

    fs::path find(const std::vector<const wchar_t*>& files, const wchar_t* dataFile)
    {
        for (const wchar_t* file : files) {
            fs::create_directories((m_folder / file).parent_path());
            std::ofstream(m_folder / file) << "{}";
        }
        const fs::path found = findPackage(m_folder, dataFile);
        return found.empty() ? found : fs::relative(found, m_folder);
    }

    const fs::path m_folder = fs::temp_directory_path() / L"o7-product-lookup-test";
};

TEST_F(ProductLookup, FindsNothingInAFolderWithoutPackages)
{
    EXPECT_TRUE(find({L"o7plimQK.dll"}, L"").empty());
}

TEST_F(ProductLookup, TakesTheFirstOfSeveralProducts)
{
    EXPECT_EQ(find({L"products/b/package.json", L"products/a/package.json"}, L""),
              fs::path(L"products/a/package.json"));
}

TEST_F(ProductLookup, PrefersTheFlatPackageToOtherProducts)
{
    EXPECT_EQ(find({L"products/a/package.json", L"package.json"}, L"C:/drivers/package.json"),
              fs::path(L"package.json"));
}

TEST_F(ProductLookup, FollowsTheDriversDataFile)
{
    EXPECT_EQ(find({L"products/a/package.json", L"products/b/package.json", L"package.json"},
                   L"C:/drivers/b.dat"),
              fs::path(L"products/b/package.json"));
}

} // namespace
} // namespace o7
