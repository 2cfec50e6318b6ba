#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "story.h"

namespace o7::story {

/// One thing that is wrong with a story.
struct Mistake
{
    std::string file;
    int line = 0; ///< counted from 1
    std::string message;

    /// "<file>:<line>: <message>".
    std::string toString() const;
};

/// A story, and everything that is wrong with it; one with mistakes is not to be played.
struct ParsedStory
{
    Story story;
    std::vector<Mistake> mistakes;
};

/// Reads the text of a story, whatever is in it.
/// @param file      how reports name it.
/// @param products  the names of all products; empty: any name passes.
ParsedStory parseStory(std::string_view text, const std::string& file,
                       std::span<const std::string> products);

} // namespace o7::story
