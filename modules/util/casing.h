#pragma once
// Case and white space, the same in every locale: by the operating system's invariant tables on
// Windows, by the C.UTF-8 tables on the host.

#include <cstddef>
#include <string_view>

namespace o7 {

bool isWhiteSpace(wchar_t character) noexcept;
int compareNoCase(std::wstring_view a, std::wstring_view b) noexcept;
void toUpper(wchar_t* text, std::size_t length) noexcept;
void toLower(wchar_t* text, std::size_t length) noexcept;

} // namespace o7
