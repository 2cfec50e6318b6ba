#include "words.h"

#include <algorithm>

namespace o7::story {
namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// Reads line by line of text; knows where it is.
class Splitter
{
public:
    explicit Splitter(std::string_view line) : m_line(line) {}

    Words split()
    {
        Words result;
        skipBlanks();
        const std::size_t begin = m_at;
        std::size_t end = m_at;
        while (result.fault.empty() && !atEnd() && m_line[m_at] != '#') {
            result.fault = readWord(result.words);
            end = m_at;
            skipBlanks();
        }
        result.source = m_line.substr(begin, end - begin);
        return result;
    }

private:
    bool atEnd() const { return m_at == m_line.size(); }

    void skipBlanks()
    {
        while (!atEnd() && isBlank(m_line[m_at])) {
            ++m_at;
        }
    }

    std::string readWord(std::vector<Word>& words)
    {
        if (m_line[m_at] == '"') {
            ++m_at;
            return readQuoted(words);
        }
        const auto rest = m_line.substr(m_at);
        const auto end = std::ranges::find_if(rest, [](char c) { return isBlank(c) || c == '"'; });
        const auto length = static_cast<std::size_t>(end - rest.begin());
        words.push_back({std::string(rest.substr(0, length)), false});
        m_at += length;
        return atEnd() || isBlank(m_line[m_at]) ? ""
                                                : "there is no blank between " + words.back().text +
                                                      " and the quotation mark behind it";
    }

    std::string readQuoted(std::vector<Word>& words)
    {
        std::string text;
        for (; !atEnd(); ++m_at) {
            if (m_line[m_at] != '"') {
                text += m_line[m_at];
                continue;
            }
            ++m_at;
            if (atEnd() || m_line[m_at] != '"') {
                words.push_back({text, true});
                return atEnd() || isBlank(m_line[m_at])
                           ? ""
                           : "there is no blank behind \"" + text +
                                 "\"; a quotation mark inside a text is written twice";
            }
            text += '"';
        }
        return "the quotation mark before " + text + " has none that ends the text";
    }

    std::string_view m_line;
    std::size_t m_at = 0;
};

} // namespace

Words splitWords(std::string_view line)
{
    return Splitter(line).split();
}

std::string inQuotes(std::string_view text)
{
    return std::string(1, '"').append(text).append(1, '"');
}

} // namespace o7::story
