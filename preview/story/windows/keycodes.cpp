#include "keycodes.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace o7::story {
namespace {

struct KeyRow
{
    std::string_view name;
    WORD code;
};

constexpr std::array<KeyRow, 15> kKeys{{{"Tab", VK_TAB},
                                        {"Enter", VK_RETURN},
                                        {"Escape", VK_ESCAPE},
                                        {"Space", VK_SPACE},
                                        {"Backspace", VK_BACK},
                                        {"Insert", VK_INSERT},
                                        {"Delete", VK_DELETE},
                                        {"Home", VK_HOME},
                                        {"End", VK_END},
                                        {"PageUp", VK_PRIOR},
                                        {"PageDown", VK_NEXT},
                                        {"Up", VK_UP},
                                        {"Down", VK_DOWN},
                                        {"Left", VK_LEFT},
                                        {"Right", VK_RIGHT}}};

} // namespace

WORD keyCode(const std::string& key)
{
    if (key.size() == 1) {
        return static_cast<WORD>(key.front()); // letters and digits are their own codes
    }
    const auto* const found = std::ranges::find(kKeys, key, &KeyRow::name);
    if (found != kKeys.end()) {
        return found->code;
    }
    if (key.starts_with('F')) {
        return static_cast<WORD>(VK_F1 + std::stoi(key.substr(1)) - 1);
    }
    throw std::invalid_argument("There is no key \"" + key + "\".");
}

} // namespace o7::story
