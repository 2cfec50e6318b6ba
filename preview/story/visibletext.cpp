#include "visibletext.h"

#include <algorithm>
#include <array>

namespace o7::story {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::array<std::string_view, 2> kColons{":", "\uFF1A"};
constexpr std::string_view kMark = " !";
constexpr std::string_view kDots = "\u2026";

/// Letters that the Latin mnemonic of a text in other letters stands behind: "(&K)".
std::size_t bracketedMnemonic(std::string_view text, std::size_t at)
{
    const bool is = text.substr(at).starts_with("(&") && at + 3 < text.size() &&
                    text[at + 3] == ')' && text[at + 2] != '&';
    return is ? 4 : 0;
}

std::string withoutMnemonics(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (const std::size_t bracketed = bracketedMnemonic(text, i)) {
            i += bracketed - 1;
        } else if (text[i] != '&') {
            plain += text[i];
        } else if (i + 1 < text.size()) {
            plain += text[++i]; // "&&" is one ampersand
        }
    }
    return plain;
}

void trimRight(std::string_view& text)
{
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

} // namespace

std::string plainLabel(std::string_view text)
{
    const std::string plain = withoutMnemonics(text);
    std::string_view rest(plain);
    trimRight(rest);
    for (const std::string_view colon : kColons) {
        if (rest.ends_with(colon)) {
            rest.remove_suffix(colon.size());
            trimRight(rest);
        }
    }
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    return std::string(rest);
}

TabTitle::TabTitle(std::string_view shown)
{
    if (shown.ends_with(kMark)) {
        marked = true;
        shown.remove_suffix(kMark.size());
    }
    if (marked && shown.ends_with(kDots)) {
        shortened = true;
        shown.remove_suffix(kDots.size());
    }
    title = plainLabel(shown);
}

bool TabTitle::isOf(std::string_view wholeTitle) const
{
    return shortened ? wholeTitle.starts_with(title) : wholeTitle == title;
}

} // namespace o7::story
