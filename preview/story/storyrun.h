#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "storyplayer.h"

namespace o7::story {

/// Reads stories, then plays them one after the other.
struct StoryRun
{
    std::vector<std::filesystem::path> files;
    std::filesystem::path products; ///< the folder that holds the packages
    StageFactory stages;
    StoryPlayer::Writer print;      ///< a line for each check
    StoryPlayer::Writer printError; ///< a line for each mistake
};

/// What printer and users keep lies in a folder of its own below the system's temporary one, which
/// is gone afterwards.
/// @return 0 when every check passed, 1 when one failed, 2 when a story cannot be read: then none
///         is played.
int runStories(const StoryRun& run);

} // namespace o7::story
