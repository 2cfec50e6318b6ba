// The packages under test, and where their texts are.
#pragma once

#include "stringtablesource.h"
#include "textscript.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace o7 {

struct ProductUnderTest
{
    const char* name; ///< of its folder
    int family;
};

inline constexpr ProductUnderTest kProducts[] = {
    {"office-c430", 8430}, {"production-p900", 8431}, {"mono-m210", 8432},
    {"photo-x150", 8433},  {"wide-w360", 8434},
};

inline constexpr const char* kLanguages[] = {"en", "de", "fr", "es", "ja", "ar"};

inline std::filesystem::path productFolder(const std::string& product)
{
    return std::filesystem::path(O7_PRODUCTS_DIR) / product;
}

/// @throws std::runtime_error with the first thing that is wrong with the scripts.
inline StringTable productStrings(const std::string& product, const std::string& language)
{
    std::vector<PackageError> errors;
    StringTable strings;
    for (const auto& [number, text] :
         readTextScript(productFolder(product) / "strings" / (language + ".rc"), errors))
        strings.emplace(number, text.text);
    for (const PackageError& error : errors)
        throw std::runtime_error(error.ToString());
    return strings;
}

} // namespace o7
