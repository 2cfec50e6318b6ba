#pragma once

#include <filesystem>

#include "previewoptions.h"
#include "previewrun.h"

namespace o7 {

/// `--story`: plays the stories, each session by the stage of its entry, and prints a line for each
/// check, or everything that is wrong with a story to the error stream.
/// @param programFolder  of this program and the modules; the packages are in its folder products
///                       when the options name no other.
ExitCode runStoryFiles(const PreviewOptions& options, const std::filesystem::path& programFolder);

} // namespace o7
