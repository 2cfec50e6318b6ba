#include "chord.h"

#include <algorithm>
#include <array>
#include <utility>

namespace o7::story {
namespace {

constexpr std::array<std::string_view, 27> kKeys{
    "Tab",    "Enter",    "Escape", "Space", "Backspace", "Insert", "Delete", "Home", "End",
    "PageUp", "PageDown", "Up",     "Down",  "Left",      "Right",  "F1",     "F2",   "F3",
    "F4",     "F5",       "F6",     "F7",    "F8",        "F9",     "F10",    "F11",  "F12"};

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool sameWord(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, upper, upper);
}

/// One of ours for the key of that name; empty when there is none.
std::string keyOf(std::string_view name)
{
    const auto found =
        std::ranges::find_if(kKeys, [&](std::string_view key) { return sameWord(key, name); });
    if (found != kKeys.end()) {
        return std::string(*found);
    }
    const char letter = name.size() == 1 ? upper(name.front()) : '\0';
    const bool known = (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9');
    return known ? std::string(1, letter) : std::string();
}

/// Whether the modifier was not there yet.
bool press(bool& modifier)
{
    return !std::exchange(modifier, true);
}

bool addModifier(Chord& chord, std::string_view name)
{
    if (sameWord(name, "Ctrl")) {
        return press(chord.ctrl);
    }
    if (sameWord(name, "Alt")) {
        return press(chord.alt);
    }
    return sameWord(name, "Shift") && press(chord.shift);
}

} // namespace

std::span<const std::string_view> keyNames()
{
    return kKeys;
}

std::optional<Chord> parseChord(std::string_view text)
{
    Chord chord;
    for (std::size_t plus = text.find('+'); plus != std::string_view::npos; plus = text.find('+')) {
        if (!addModifier(chord, text.substr(0, plus))) {
            return std::nullopt;
        }
        text.remove_prefix(plus + 1);
    }
    chord.key = keyOf(text);
    return chord.key.empty() ? std::nullopt : std::optional(chord);
}

} // namespace o7::story
