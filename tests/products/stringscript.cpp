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

std::string unquote(const std::string& text)
{
    static const std::regex kTwoQuotes("\"\"");
    return std::regex_replace(text, kTwoQuotes, "\"");
}

class Reader
{
public:
    explicit Reader(Names names) : m_names(std::move(names)) {}

    void read(const std::filesystem::path& script)
    {
        auto in = openText(script);
        bool inTable = false;
        std::string line;
        for (int number = 1; std::getline(in, line); ++number) {
            m_place = script.string() + ":" + std::to_string(number) + ": ";
            if (line == "BEGIN" || line == "END")
                inTable = line == "BEGIN";
            else if (inTable)
                addString(line);
            else
                followInclude(script, line);
        }
    }

    StringTable take() { return std::move(m_strings); }

private:
    void addString(const std::string& line)
    {
        static const std::regex kString(R"RE(\s+(\w+),?\s+"((?:[^"]|"")*)"\s*)RE");
        std::smatch found;
        if (!std::regex_match(line, found, kString))
            throw std::runtime_error(m_place + "not a string: " + line);
        const unsigned number = numberOf(found[1]);
        if (!m_strings.emplace(number, unquote(found[2])).second)
            throw std::runtime_error(m_place + "given twice: " + std::to_string(number));
    }

    void followInclude(const std::filesystem::path& script, const std::string& line)
    {
        static const std::regex kInclude(R"RE(#include\s+"(.*\.rc)")RE");
        std::smatch found;
        if (std::regex_match(line, found, kInclude))
            read(script.parent_path() / found[1].str());
    }

    unsigned numberOf(const std::string& word) const
    {
        if (std::isdigit(static_cast<unsigned char>(word.front())))
            return static_cast<unsigned>(std::stoul(word));
        const auto named = m_names.find(word);
        if (named == m_names.end())
            throw std::runtime_error(m_place + "unknown name: " + word);
        return named->second;
    }

    Names m_names;
    StringTable m_strings;
    std::string m_place;
};

} // namespace

StringTable readStringScript(const std::filesystem::path& script,
                             const std::filesystem::path& names)
{
    Reader reader(readNames(names));
    reader.read(script);
    return reader.take();
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
