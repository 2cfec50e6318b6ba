#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace o7 {

/// The product packages beside the program: every folder of `products` that holds a package.json.
class ProductCatalogue
{
public:
    /// A root that is not there is an empty catalogue.
    explicit ProductCatalogue(std::filesystem::path root);

    /// Folder names in alphabetical order.
    const std::vector<std::wstring>& names() const { return m_names; }

    /// The product's folder, nothing for an unknown one. An empty name finds the usual product, or
    /// the first where that is not there. Only names of the list are found, so no name leads out of
    /// the root.
    std::optional<std::filesystem::path> find(std::wstring_view name) const;

    /// The sentence for a product that was not found, with the list of those there are.
    std::wstring unknownProductText(std::wstring_view name) const;

private:
    std::filesystem::path m_root;
    std::vector<std::wstring> m_names;
};

} // namespace o7
