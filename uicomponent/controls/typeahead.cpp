#include "typeahead.h"

namespace o7 {

void TypeAhead::add(wchar_t character, std::uint32_t time)
{
    if (isFreshAt(time)) {
        m_typed.clear();
    }
    m_typed.push_back(character);
    m_lastTime = time;
}

bool TypeAhead::isFreshAt(std::uint32_t time) const noexcept
{
    return m_typed.empty() || time - m_lastTime > kPatience;
}

std::wstring_view TypeAhead::sought() const noexcept
{
    const std::wstring_view typed = m_typed;
    const bool isRepeated = typed.find_first_not_of(typed.substr(0, 1)) == std::wstring_view::npos;
    return isRepeated ? typed.substr(0, 1) : typed;
}

} // namespace o7
