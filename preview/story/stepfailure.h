#pragma once

#include <stdexcept>

namespace o7::story {

/// A step could not be done: the sentence says what was there instead ("There is no "Staple" on
/// this page; there are: ..."). UTF-8. The rest of the story is not played.
class StepFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace o7::story
