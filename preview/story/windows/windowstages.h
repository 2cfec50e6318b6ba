#pragma once

#include <filesystem>
#include <memory>

#include "session.h"
#include "storystage.h"

namespace o7::story {

/// The stage for an entry that shows windows.
/// @param products  the folder of the packages.
/// @param programs  the folder of this program and of the modules.
/// @param store     where the user and the printer of the story keep what they keep.
/// @throws std::runtime_error with a sentence when the entry cannot be had.
std::unique_ptr<StoryStage> makeWindowStage(const Session& session,
                                            const std::filesystem::path& products,
                                            const std::filesystem::path& programs,
                                            const std::filesystem::path& store);

} // namespace o7::story
