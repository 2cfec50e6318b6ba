#pragma once

#include <string>

#include "story.h"
#include "storystage.h"

namespace o7::story {

/// Looks whether what a step expects is so.
/// @return empty when it is, else what was seen instead, as the end of a sentence.
/// @throws StepFailure when the stage cannot read it.
std::string judge(StoryStage& stage, const Expectation& expected);

} // namespace o7::story
