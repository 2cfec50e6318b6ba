#include "uidumptext.h"

#include <algorithm>

namespace o7::story {
namespace {

/// Takes `"text"` with its escapes from the front.
std::string takeQuoted(std::string_view& rest)
{
    std::string text;
    std::size_t i = 1;
    for (; i < rest.size() && rest[i] != '"'; ++i) {
        if (rest[i] == '\\' && i + 1 < rest.size()) {
            ++i;
            text += rest[i] == 'n' ? '\n' : rest[i];
        } else {
            text += rest[i];
        }
    }
    rest.remove_prefix(std::min(i + 1, rest.size()));
    return text;
}

/// Takes a mark and the quoted text behind it, when the line goes on with them.
std::string takeAfter(std::string_view& rest, std::string_view mark)
{
    if (!rest.starts_with(mark)) {
        return {};
    }
    rest.remove_prefix(mark.size() - 1);
    return takeQuoted(rest);
}

std::string takeState(std::string_view& rest)
{
    if (!rest.starts_with(" [")) {
        return {};
    }
    const std::size_t end = std::min(rest.find(']'), rest.size() - 1);
    std::string state(rest.substr(2, end - 2));
    rest.remove_prefix(end + 1);
    return state;
}

DumpLine parseLine(std::string_view text)
{
    DumpLine line;
    const std::size_t indent = std::min(text.find_first_not_of(' '), text.size());
    line.level = static_cast<int>(indent / 2);
    text.remove_prefix(indent);
    const std::size_t quote = text.find(" \"");
    line.kind = std::string(text.substr(0, quote));
    if (quote == std::string_view::npos) {
        return line;
    }
    text.remove_prefix(quote + 1);
    line.label = takeQuoted(text);
    line.value = takeAfter(text, " = \"");
    line.state = takeState(text);
    line.reason = takeAfter(text, " because \"");
    return line;
}

} // namespace

bool DumpLine::isLabelled(std::string_view text) const
{
    return label == text || plainLabel(label) == text;
}

bool DumpLine::is(std::string_view wanted) const
{
    std::string_view rest(state);
    while (!rest.empty()) {
        const std::size_t comma = rest.find(", ");
        if (rest.substr(0, comma) == wanted) {
            return true;
        }
        rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 2);
    }
    return false;
}

DumpText::DumpText(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        m_lines.push_back(parseLine(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

std::span<const DumpLine> DumpText::under(std::string_view kind, std::string_view label) const
{
    return under([&](const DumpLine& line) { return line.kind == kind && line.isLabelled(label); });
}

std::span<const DumpLine> DumpText::under(std::string_view kind, const TabTitle& tab) const
{
    return under([&](const DumpLine& line) { return line.kind == kind && tab.isOf(line.label); });
}

std::span<const DumpLine>
DumpText::under(const std::function<bool(const DumpLine&)>& isHeading) const
{
    const auto found = std::find_if(m_lines.rbegin(), m_lines.rend(), isHeading);
    if (found == m_lines.rend()) {
        return {};
    }
    const auto end = std::find_if(found.base(), m_lines.end(),
                                  [&](const DumpLine& line) { return line.level <= found->level; });
    return {found.base(), end};
}

} // namespace o7::story
