// Reads the string tables of a resource script, so that the texts of a product can be checked
// where no resource compiler and no Windows is. Understands what our scripts use: #include of
// another script, numbers or names of uistringnumbers.h, one text to a line.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace o7 {

/// Texts (UTF-8) by string number.
using StringTable = std::map<unsigned, std::string>;

/// All strings of `script` and of the scripts it includes. `names` is the header that defines the
/// names used in place of numbers.
/// @throws std::exception: file missing, unknown name; with file and line when a number is given
/// twice or a line in a string table is not a string.
StringTable readStringScript(const std::filesystem::path& script,
                             const std::filesystem::path& names);

/// The mnemonic of a control text in lower case: the character after a single '&'; empty without.
std::string mnemonicOf(const std::string& text);

} // namespace o7
