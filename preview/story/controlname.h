#pragma once

#include <string>
#include <string_view>

namespace o7::story {

/// How a story names a control: by its visible label, without mnemonic and colon, or as
/// "Group/Label" where a label stands twice. With `entry model` it is the name of a feature.
/// Texts are UTF-8.
class ControlName
{
public:
    ControlName() = default;
    // Implicit on purpose: a name in a story is a text.
    ControlName(std::string text) : m_text(std::move(text)) {}
    ControlName(const char* text) : m_text(text) {}

    const std::string& text() const { return m_text; }
    bool empty() const { return m_text.empty(); }

    /// Whether a control with this label in this group is meant. A slash in a label needs no
    /// escape: the whole name is compared with the label first. `group` may be empty.
    bool matches(std::string_view group, std::string_view label) const;

    friend bool operator==(const ControlName&, const ControlName&) = default;

private:
    std::string m_text;
};

} // namespace o7::story
