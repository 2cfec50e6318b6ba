#include "longerstringloader.h"

#include <cwctype>
#include <string>
#include <string_view>

namespace o7 {

namespace {

constexpr std::size_t kShortWord = 3; // fewer letters than that make no word of their own

/// What a longer text still ends with: a mnemonic of its own in parentheses, a colon, a full stop.
std::size_t tailStart(std::wstring_view text)
{
    std::size_t end = text.find_last_not_of(L" :.\uFF1A\u3002") + 1;
    constexpr std::size_t kMark = 4; // "(&P)"
    if (end >= kMark && text[end - 1] == L')' && text.substr(end - kMark, 2) == L"(&")
        end -= kMark;
    return end;
}

} // namespace

CXString longerText(const CXString& text)
{
    const std::wstring_view real = text.View();
    const std::size_t wanted = (real.size() * 3 + 9) / 10;
    std::wstring more;
    bool inPlaceholder = false;
    for (const wchar_t letter : real) {
        if (letter == L'%' || letter == L'{' || letter == L'#')
            inPlaceholder = true;
        else if (letter == L' ' || letter == L'}')
            inPlaceholder = false;
        else if (!inPlaceholder && more.size() < wanted && std::iswalpha(letter) != 0)
            more += static_cast<wchar_t>(std::towlower(letter));
    }
    std::wstring longer(real);
    const std::size_t tail = tailStart(real);
    if (more.size() >= kShortWord && tail > 0 && real[0] < 0x2E80) // no blanks between ideographs
        more.insert(0, 1, L' ');
    longer.insert(tail, more);
    return CXString(std::wstring_view(longer));
}

} // namespace o7
