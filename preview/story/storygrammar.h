#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "story.h"
#include "words.h"

namespace o7::story {

/// A line that says what the session is, instead of doing something.
enum class Setting
{
    Product,
    Entry,
    Mode,
    Language,
};

/// One form of the language.
struct Form
{
    /// Words in small letters stand as they are, words in capitals for what is filled in. What
    /// stands in brackets at the end may be left out.
    std::string_view pattern;
    std::variant<Setting, Verb, Aspect> meaning; ///< an aspect: of the verb `expect`
};

/// What stands in the places of a pattern.
struct Filled
{
    std::string_view place; ///< "CONTROL", "TEXT" and so on
    std::string text;
};

/// A line that was recognised, or why it was not.
struct Recognition
{
    const Form* form = nullptr; ///< null when it was not
    std::vector<Filled> places;
    std::string fault;
};

/// Every form, the whole language.
std::span<const Form> forms();

/// Finds the form of a line that has at least one word.
/// @param bareNames  names of features may stand without quotation marks where, in a window, the
///                   label of a control stands in them.
Recognition recognise(std::span<const Word> words, bool bareNames);

} // namespace o7::story
