#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "story.h"

namespace o7::story {

/// The entry with this name, as stories write it.
std::optional<Entry> entryNamed(std::string_view name);

/// What is wrong with showing this mode through this entry; empty when nothing is.
std::string objectionTo(Entry entry, int mode);

/// What is wrong with this step in a session with this entry, because the entry cannot do it; empty
/// when nothing is.
std::string objectionTo(Entry entry, const Step& step);

} // namespace o7::story
