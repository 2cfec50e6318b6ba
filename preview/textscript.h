#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "datamodelfactory.h"

namespace o7 {

/// One text of a product in one language, and where it was written.
struct PackageText
{
    std::string text; ///< UTF-8
    std::filesystem::path file;
    unsigned line = 0; ///< counted from 1; 0 when it was read out of a module
};

/// Texts by string number.
using PackageTexts = std::map<unsigned, PackageText>;

/// Reads the string tables of a resource script and of the scripts it includes: one text to a line,
/// numbers or names of uistringnumbers.h, "//" comments. Everything that is wrong (no such file, no
/// text, an unknown name, a number that has a text already, more than one page of code) is added to
/// the errors, and the rest is read all the same.
PackageTexts readTextScript(const std::filesystem::path& script, std::vector<PackageError>& errors);

} // namespace o7
