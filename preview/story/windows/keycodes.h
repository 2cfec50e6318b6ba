#pragma once

#include <windows.h>

#include <string>

namespace o7::story {

/// The virtual key for a key as chords name it (chord.h).
WORD keyCode(const std::string& key);

} // namespace o7::story
