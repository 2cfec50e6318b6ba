#include "stringscript.h"

#include <cctype>
#include <fstream>
#include <regex>
#include <stdexcept>

namespace o7 {

namespace {

using Names = std::map<std::string, unsigned>;

std::ifstream openText(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw std::runtime_error(file.string() + ": cannot be opened");
    return in;
}

Names readNames(const std::filesystem::path& header)
{
    static const std::regex kDefine(R"(#define\s+(O7STR_\w+)\s+(\d+).*)");
    Names names;
    auto in = openText(header);
    std::smatch found;
    for (std::string line; std::getline(in, line);)
        if (std::regex_match(line, found, kDefine))
            names[found[1]] = static_cast<unsigned>(std::stoul(found[2]));
    return names;
}

unsigned numberOf(const std::string& word, const Names& names)
{
    const auto named = names.find(word);
    return named != names.end() ? named->second : static_cast<unsigned>(std::stoul(word));
}

void readInto(StringTable& strings, const std::filesystem::path& script, const Names& names)
{
    static const std::regex kInclude(R"RE(#include\s+"(.*\.rc)")RE");
    static const std::regex kString(R"RE(\s+(\w+),?\s+"((?:[^"]|"")*)"\s*)RE");
    static const std::regex kTwoQuotes("\"\"");
    auto in = openText(script);
    bool inTable = false;
    std::smatch found;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (line == "BEGIN" || line == "END")
            inTable = line == "BEGIN";
        else if (!inTable && std::regex_match(line, found, kInclude))
            readInto(strings, script.parent_path() / found[1].str(), names);
        else if (inTable && (!std::regex_match(line, found, kString) ||
                             !strings
                                  .emplace(numberOf(found[1], names),
                                           std::regex_replace(found[2].str(), kTwoQuotes, "\""))
                                  .second))
            throw std::runtime_error(script.string() + ":" + std::to_string(number) +
                                     ": no string, or given twice: " + line);
    }
}

} // namespace

StringTable readStringScript(const std::filesystem::path& script,
                             const std::filesystem::path& names)
{
    StringTable strings;
    readInto(strings, script, readNames(names));
    return strings;
}

std::string mnemonicOf(const std::string& text)
{
    for (std::size_t at = text.find('&'); at != std::string::npos && at + 1 < text.size();
         at = text.find('&', at + 2)) {
        const char next = text[at + 1];
        if (next != '&')
            return {static_cast<char>(std::tolower(static_cast<unsigned char>(next)))};
    }
    return {};
}

} // namespace o7
