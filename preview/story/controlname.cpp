#include "controlname.h"

namespace o7::story {

bool ControlName::matches(std::string_view group, std::string_view label) const
{
    const std::string_view text(m_text);
    return text == label ||
           (!group.empty() && text.size() == group.size() + 1 + label.size() &&
            text.starts_with(group) && text[group.size()] == '/' && text.ends_with(label));
}

} // namespace o7::story
