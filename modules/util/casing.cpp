#include "casing.h"

#include <algorithm>

#if defined(_WIN32)
#include <windows.h>
#else
#include <clocale>
#include <cwctype>
#endif

namespace o7 {

bool isWhiteSpace(wchar_t character) noexcept
{
    return (character >= L'\t' && character <= L'\r') || character == L' ' ||
           character == L'\u00A0' || character == L'\u1680' ||
           (character >= L'\u2000' && character <= L'\u200A') || character == L'\u2028' ||
           character == L'\u2029' || character == L'\u202F' || character == L'\u205F' ||
           character == L'\u3000';
}

#if defined(_WIN32)

namespace {

void mapCase(wchar_t* text, std::size_t length, DWORD map) noexcept
{
    // Mapping in place is allowed for case, where each character maps to one.
    LCMapStringEx(LOCALE_NAME_INVARIANT, map, text, static_cast<int>(length), text,
                  static_cast<int>(length), nullptr, nullptr, 0);
}

} // namespace

int compareNoCase(std::wstring_view a, std::wstring_view b) noexcept
{
    return CompareStringOrdinal(a.data() == nullptr ? L"" : a.data(), static_cast<int>(a.size()),
                                b.data() == nullptr ? L"" : b.data(), static_cast<int>(b.size()),
                                TRUE) -
           CSTR_EQUAL;
}

void toUpper(wchar_t* text, std::size_t length) noexcept
{
    mapCase(text, length, LCMAP_UPPERCASE);
}

void toLower(wchar_t* text, std::size_t length) noexcept
{
    mapCase(text, length, LCMAP_LOWERCASE);
}

#else

namespace {

// Kept for the life of the process, as every text may need it; null falls back to ASCII.
locale_t neutralLocale() noexcept
{
    static const locale_t neutral = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return neutral;
}

wchar_t upper(wchar_t character) noexcept
{
    const locale_t neutral = neutralLocale();
    if (neutral == nullptr) {
        return character >= L'a' && character <= L'z' ? character - (L'a' - L'A') : character;
    }
    return static_cast<wchar_t>(towupper_l(static_cast<wint_t>(character), neutral));
}

wchar_t lower(wchar_t character) noexcept
{
    const locale_t neutral = neutralLocale();
    if (neutral == nullptr) {
        return character >= L'A' && character <= L'Z' ? character + (L'a' - L'A') : character;
    }
    return static_cast<wchar_t>(towlower_l(static_cast<wint_t>(character), neutral));
}

} // namespace

int compareNoCase(std::wstring_view a, std::wstring_view b) noexcept
{
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const wchar_t x = upper(a[i]);
        const wchar_t y = upper(b[i]);
        if (x != y) {
            return x < y ? -1 : 1;
        }
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

void toUpper(wchar_t* text, std::size_t length) noexcept
{
    std::transform(text, text + length, text, upper);
}

void toLower(wchar_t* text, std::size_t length) noexcept
{
    std::transform(text, text + length, text, lower);
}

#endif

} // namespace o7
