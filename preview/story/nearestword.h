#pragma once

#include <span>
#include <string>
#include <string_view>

namespace o7::story {

/// The candidate that the word is most likely a misspelling of: the fewest letters added, left out,
/// changed or swapped, in any case of letters. Empty when none is near.
std::string_view nearestWord(std::string_view word, std::span<const std::string_view> candidates);

/// "; did you mean "candidate"?", or nothing.
std::string suggestion(std::string_view word, std::span<const std::string_view> candidates);

} // namespace o7::story
