#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "datamodelfactory.h"
#include "numberstrings.h"

namespace o7::test {

/// One product after the other, each with a model of its own.
class Product
{
public:
    explicit Product(const std::filesystem::path& folder)
        : m_package(LoadProductPackage(folder, m_errors))
    {
    }

    std::unique_ptr<IDataModel> model() const { return CreateDataModel(*m_package, m_strings); }
    bool isLoaded() const { return m_package != nullptr; }

private:
    mutable NumberStrings m_strings;
    std::vector<PackageError> m_errors;
    std::unique_ptr<ProductPackage> m_package;
};

} // namespace o7::test
