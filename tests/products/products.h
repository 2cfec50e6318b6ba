// The packages under test, and where their texts are.
#pragma once

#include "stringtablesource.h"

#include <filesystem>
#include <string>

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

inline StringTable productStrings(const std::string& product, const std::string& language)
{
    return readStringScript(productFolder(product) / "strings" / (language + ".rc"),
                            O7_UISTRINGNUMBERS);
}

} // namespace o7
