#include "textscript.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <optional>
#include <string_view>

#include "stringnumbers.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;
using Names = std::map<std::string_view, unsigned>;

constexpr std::string_view kBlanks = " \t\r";
constexpr int kDeepestInclude = 8;

std::string_view trim(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// The word at the beginning, which is cut off together with the blanks behind it.
std::string_view takeWord(std::string_view& text)
{
    const std::size_t end = std::min(text.find_first_of(" \t,"), text.size());
    const std::string_view word = text.substr(0, end);
    text = trim(text.substr(end));
    return word;
}

std::optional<unsigned> numberIn(std::string_view word)
{
    unsigned number = 0;
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), number);
    return fault == std::errc() && end == word.data() + word.size() ? std::optional(number)
                                                                    : std::nullopt;
}

/// "#define NAME NUMBER // …" of the header that the scripts include.
const Names& names()
{
    static const Names kNames = [] {
        Names found;
        std::string_view rest = stringNumberDefinitions();
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find('\n'), rest.size());
            std::string_view line = trim(rest.substr(0, end));
            rest.remove_prefix(std::min(end + 1, rest.size()));
            if (takeWord(line) == "#define") {
                const std::string_view name = takeWord(line);
                if (const auto number = numberIn(takeWord(line))) {
                    found.emplace(name, *number);
                }
            }
        }
        return found;
    }();
    return kNames;
}

/// What stands between the first quotation mark and the last one; two stand for one.
std::optional<std::string> quoted(std::string_view text)
{
    if (text.size() < 2 || text.front() != '"' || text.back() != '"') {
        return std::nullopt;
    }
    std::string inside;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] == '"' && (i + 2 >= text.size() || text[++i] != '"')) {
            return std::nullopt;
        }
        inside += text[i];
    }
    return inside;
}

class ScriptReader
{
public:
    ScriptReader(PackageTexts& texts, std::vector<PackageError>& errors)
        : m_texts(texts), m_errors(errors)
    {
    }

    void read(const fs::path& script, int depth)
    {
        std::ifstream in(script, std::ios::binary);
        if (!in || depth > kDeepestInclude) {
            m_errors.push_back({script, 0, in ? "is included too deeply" : "cannot be read"});
            return;
        }
        bool inTable = false;
        std::string line;
        for (unsigned number = 1; std::getline(in, line); ++number) {
            const std::string_view text = trim(line);
            if (text == "BEGIN" || text == "END") {
                inTable = text == "BEGIN";
            } else if (inTable && !text.empty() && !text.starts_with("//")) {
                readText(text, script, number);
            } else if (text.starts_with("#include")) {
                include(trim(text.substr(8)), script, number, depth);
            }
        }
    }

private:
    void include(std::string_view name, const fs::path& script, unsigned line, int depth)
    {
        const auto file = quoted(name);
        if (!file) {
            fail(script, line, "expected a file in quotation marks, found " + std::string(name));
        } else if (file->ends_with(".rc")) {
            read((script.parent_path() / *file).lexically_normal(), depth + 1);
        }
    }

    void readText(std::string_view row, const fs::path& script, unsigned line)
    {
        const std::string_view word = takeWord(row);
        if (row.starts_with(',')) {
            row = trim(row.substr(1));
        }
        const auto named = names().find(word);
        const auto number = named != names().end() ? named->second : numberIn(word);
        const auto text = quoted(row);
        if (!number) {
            fail(script, line,
                 std::string("\"").append(word).append("\" is neither a number nor a name of one"));
        } else if (!text) {
            fail(script, line, "expected one text in quotation marks, found " + std::string(row));
        } else if (const auto [known, isNew] = m_texts.try_emplace(*number); isNew) {
            known->second = {*text, script, line};
        } else {
            const std::u8string file = known->second.file.filename().generic_u8string();
            fail(script, line,
                 "text " + std::to_string(*number) + " is there already, in " +
                     std::string(file.begin(), file.end()) + " line " +
                     std::to_string(known->second.line));
        }
    }

    void fail(const fs::path& script, unsigned line, std::string message)
    {
        m_errors.push_back({script, line, std::move(message)});
    }

    PackageTexts& m_texts;
    std::vector<PackageError>& m_errors;
};

} // namespace

PackageTexts readTextScript(const fs::path& script, std::vector<PackageError>& errors)
{
    PackageTexts texts;
    ScriptReader(texts, errors).read(script, 0);
    return texts;
}

} // namespace o7
