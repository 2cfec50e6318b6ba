// The products as parameters of tests.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace o7::test {

/// Every folder of products that holds a package.
inline std::vector<std::filesystem::path> productFolders()
{
    std::vector<std::filesystem::path> folders;
    for (const auto& entry : std::filesystem::directory_iterator(O7_PRODUCTS_DIR)) {
        if (std::filesystem::is_regular_file(entry.path() / "package.json")) {
            folders.push_back(entry.path());
        }
    }
    return folders;
}

/// The name of a test about a product, which takes letters and digits alone.
inline std::string productTestName(const testing::TestParamInfo<std::filesystem::path>& product)
{
    std::string name = product.param.filename().string();
    std::erase(name, '-');
    return name;
}

} // namespace o7::test
