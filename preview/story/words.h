#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace o7::story {

/// One word of a line, or one text in quotation marks.
struct Word
{
    std::string text;
    bool quoted = false;
};

struct Words
{
    std::vector<Word> words;
    std::string source; ///< the line without comment and blanks around it
    std::string fault;  ///< why the line cannot be split; empty when it could
};

/// Splits a line at its blanks. A text in quotation marks is one word; two quotation marks in it
/// stand for one. A "#" at the beginning of a word begins a comment.
Words splitWords(std::string_view line);

/// A text as sentences name it.
std::string inQuotes(std::string_view text);

} // namespace o7::story
