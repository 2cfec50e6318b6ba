// The parts of the package under test that several tests read.
#pragma once

#include "stringtablesource.h"

#include <filesystem>
#include <string>

namespace o7 {

inline constexpr const char* kLanguages[] = {"en", "de", "fr", "es", "ja", "ar"};

inline std::filesystem::path officeC430Folder()
{
    return std::filesystem::path(O7_PRODUCTS_DIR) / "office-c430";
}

inline StringTable officeC430Strings(const std::string& language)
{
    return readStringScript(officeC430Folder() / "strings" / (language + ".rc"),
                            O7_UISTRINGNUMBERS);
}

} // namespace o7
