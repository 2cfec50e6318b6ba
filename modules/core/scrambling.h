// Secrets (a PIN) in what leaves the process: made unreadable with a key that is part of this
// module. That hides them from whoever looks at a document's bytes or finds them with a search; it
// does not protect them from somebody who has the module.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace o7 {

/// The same bytes every time, in steps of 16, so that neither two documents nor the length tell
/// more than that two secrets are the same.
std::vector<std::uint8_t> Scramble(const std::vector<std::uint8_t>& plain);

/// False for bytes that Scramble() did not make.
bool Unscramble(const std::uint8_t* bytes, std::size_t size, std::vector<std::uint8_t>& plain);

/// How many bytes Scramble() makes of so many.
std::size_t ScrambledSize(std::size_t plainSize);

} // namespace o7
