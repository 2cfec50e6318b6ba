#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace o7::story {

/// A key with the keys that are held down with it, such as `Alt+Down`.
struct Chord
{
    bool ctrl = false;
    bool alt = false;
    bool shift = false;
    /// One of keyNames(), in that spelling, or one letter A to Z or digit 0 to 9.
    std::string key;

    friend bool operator==(const Chord&, const Chord&) = default;
};

/// Tab, Enter, F1 and so on: every key that is no letter or digit.
std::span<const std::string_view> keyNames();

/// Reads "Ctrl+Shift+Tab", in any case of letters. Nothing when a part is no key.
std::optional<Chord> parseChord(std::string_view text);

} // namespace o7::story
