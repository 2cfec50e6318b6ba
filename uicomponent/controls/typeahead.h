#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace o7 {

/// What a person has typed so far to find an entry of a list by its beginning. Characters that
/// follow each other quickly make one beginning; the same character again and again goes from one
/// entry that begins with it to the next.
class TypeAhead
{
public:
    /// After this time without a character, a new beginning is typed.
    static constexpr std::uint32_t kPatience = 1000; // milliseconds

    /// @param time  milliseconds of a clock that may wrap around
    void add(wchar_t character, std::uint32_t time);

    /// True when a character at that time would be the first one.
    bool isFreshAt(std::uint32_t time) const noexcept;

    /// The beginning to look for.
    std::wstring_view sought() const noexcept;

    /// The entry that is selected may itself be the one that is meant: more of its text was typed.
    bool mayStay() const noexcept { return sought().size() > 1; }

private:
    std::wstring m_typed;
    std::uint32_t m_lastTime = 0;
};

} // namespace o7
