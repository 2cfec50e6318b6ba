#include "productcatalogue.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace o7 {
namespace {

/// Opened when none is named: it has the pages that most people know.
constexpr std::wstring_view kUsualProduct = L"office-c430";

} // namespace

ProductCatalogue::ProductCatalogue(std::filesystem::path root) : m_root(std::move(root))
{
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(m_root, error)) {
        if (std::filesystem::is_regular_file(entry.path() / "package.json", error)) {
            m_names.push_back(entry.path().filename().wstring());
        }
    }
    std::ranges::sort(m_names);
}

std::optional<std::filesystem::path> ProductCatalogue::find(std::wstring_view name) const
{
    auto found = std::ranges::find(m_names, name.empty() ? kUsualProduct : name);
    if (found == m_names.end() && name.empty()) {
        found = m_names.begin();
    }
    if (found == m_names.end()) {
        return std::nullopt;
    }
    return m_root / *found;
}

std::wstring ProductCatalogue::unknownProductText(std::wstring_view name) const
{
    if (m_names.empty()) {
        return L"There is no product in \"" + m_root.wstring() + L"\".";
    }
    std::wstring text = L"There is no product \"" + std::wstring(name) + L"\". Those there are:";
    for (const std::wstring& known : m_names) {
        text += L"\n  " + known;
    }
    return text;
}

} // namespace o7
