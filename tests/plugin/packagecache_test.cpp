#include "packagecache.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "testpackage.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;

TEST(PackageCache, ReadsAPackageAgainWhenItsFileChanged)
{
    const fs::path folder = fs::temp_directory_path() / "o7-package-cache-test";
    fs::create_directories(folder);
    const fs::path file = folder / "package.json";
    const auto write = [&](const std::string& text) { std::ofstream(file) << text; };
    std::vector<PackageError> errors;

    EXPECT_EQ(cachedPackage(folder, errors), nullptr) << "there is none yet";
    EXPECT_EQ(errors.size(), 1U);
    write(test::kTestPackage);
    const auto first = cachedPackage(folder, errors);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(cachedPackage(file, errors), first) << "the folder and its file are the same";

    write(test::kTestPackage + std::string(" "));
    const auto second = cachedPackage(folder, errors);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_EQ(first->GetProductInfo().id, L"test") << "who has the old one keeps it";
    write("{");
    EXPECT_EQ(cachedPackage(folder, errors), nullptr);
    fs::remove_all(folder);
    EXPECT_EQ(cachedPackage(folder, errors), nullptr);
}

} // namespace
} // namespace o7
