#include "uitypednumber.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace {

// The digit zero of each script; the other nine follow it.
constexpr wchar_t kZeros[] = {L'0',      L'\u0660', L'\u06F0', L'\u07C0', L'\u0966',
                              L'\u09E6', L'\u0A66', L'\u0AE6', L'\u0B66', L'\u0BE6',
                              L'\u0C66', L'\u0CE6', L'\u0D66', L'\u0E50', L'\u0ED0',
                              L'\u0F20', L'\u1040', L'\u17E0', L'\u1810', L'\uFF10'};

constexpr wchar_t kArabicDecimal = L'\u066B';
constexpr wchar_t kGroup = L'\''; // stands for every separator that can only group digits
constexpr std::size_t kGroupLength = 3;

// Characters that are written otherwise and mean the same.
constexpr struct
{
    wchar_t from;
    wchar_t to;
} kSameMeaning[] = {
    {L'\u2212', L'-'},   {L'\u2013', L'-'}, {L'\u060C', L','}, {L'\u066C', kGroup},
    {L'\u2019', kGroup}, {L'\u00A0', L' '}, {L'\u2007', L' '}, {L'\u2009', L' '},
    {L'\u202F', L' '},   {L'\u3000', L' '}, {L'\t', L' '},     {L'\u3002', L'.'},
};

bool isDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

/// Marks that steer the direction of text or join words: pasted along, and never seen.
bool isInvisible(wchar_t character)
{
    return (character >= L'\u200B' && character <= L'\u200F') ||
           (character >= L'\u202A' && character <= L'\u202E') ||
           (character >= L'\u2060' && character <= L'\u2069') || character == L'\u061C' ||
           character == L'\uFEFF';
}

wchar_t plainDigit(wchar_t character)
{
    for (const wchar_t zero : kZeros)
        if (character >= zero && character <= zero + 9)
            return static_cast<wchar_t>(L'0' + (character - zero));
    return character;
}

wchar_t plain(wchar_t character)
{
    constexpr wchar_t kFirstFullWidth = L'\uFF01';
    constexpr wchar_t kLastFullWidth = L'\uFF5E';
    constexpr wchar_t kToAscii = kFirstFullWidth - L'!';
    for (const auto& row : kSameMeaning)
        if (character == row.from)
            return row.to;
    const wchar_t digit = plainDigit(character);
    if (digit >= kFirstFullWidth && digit <= kLastFullWidth)
        return static_cast<wchar_t>(digit - kToAscii);
    return digit;
}

std::wstring_view trimmed(std::wstring_view text)
{
    constexpr std::wstring_view kBlanks = L" \r\n";
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// How many characters at the beginning are digits and separators. A blank belongs to them only
/// between digits.
std::size_t lengthOfNumber(std::wstring_view text)
{
    constexpr std::wstring_view kSeparators = L".,'\u066B ";
    std::size_t length = 0;
    while (length < text.size()) {
        const wchar_t next = text[length];
        const bool beforeDigit = length + 1 < text.size() && isDigit(text[length + 1]);
        const bool groupOnly = next == L' ' || next == kGroup;
        if (!isDigit(next) && (kSeparators.find(next) == std::wstring_view::npos ||
                               (groupOnly && (!beforeDigit || length == 0))))
            break;
        ++length;
    }
    return length;
}

/// Digits in groups as one run of digits; nothing when the groups are not of the right length.
std::optional<std::wstring> joinGroups(std::wstring_view text)
{
    std::wstring digits;
    std::size_t groupLength = 0;
    bool first = true;
    for (const wchar_t character : text) {
        if (isDigit(character)) {
            digits += character;
            ++groupLength;
            continue;
        }
        if (groupLength == 0 || groupLength > kGroupLength ||
            (!first && groupLength != kGroupLength))
            return std::nullopt;
        first = false;
        groupLength = 0;
    }
    if (!first && groupLength != kGroupLength)
        return std::nullopt;
    return digits;
}

/// Whether the only separator of its kind may stand for thousands: "1.234", but not "0.125".
bool mayGroup(std::wstring_view text, std::size_t at)
{
    return at > 0 && at <= kGroupLength && text.front() != L'0' &&
           text.size() - at - 1 == kGroupLength;
}

/// Which character separates the decimals in this number; 0 when none does.
wchar_t decimalIn(std::wstring_view text, wchar_t usual)
{
    if (text.find(kArabicDecimal) != std::wstring_view::npos)
        return kArabicDecimal;
    const auto last = text.find_last_of(L".,");
    if (last == std::wstring_view::npos)
        return 0;
    const wchar_t candidate = text[last];
    const wchar_t other = candidate == L'.' ? L',' : L'.';
    if (text.find(other) != std::wstring_view::npos)
        return candidate; // both are there: the last one
    if (text.find(candidate) != last)
        return 0; // several of one kind group
    return candidate != usual && mayGroup(text, last) ? L'\0' : candidate;
}

/// The number as Number reads it, or nothing.
std::optional<std::wstring> plainNumber(std::wstring_view text, wchar_t usualDecimal)
{
    const wchar_t decimal = decimalIn(text, usualDecimal);
    const auto point = decimal ? text.find(decimal) : std::wstring_view::npos;
    auto digits = joinGroups(text.substr(0, point));
    if (!digits)
        return std::nullopt;
    if (point != std::wstring_view::npos) {
        const std::wstring_view decimals = text.substr(point + 1);
        if (!std::all_of(decimals.begin(), decimals.end(), isDigit))
            return std::nullopt;
        if (!decimals.empty())
            (*digits += L'.') += decimals;
    }
    return std::any_of(digits->begin(), digits->end(), isDigit) ? digits : std::nullopt;
}

Number limitOfNumber(bool negative)
{
    using Limits = std::numeric_limits<std::int64_t>;
    return Number::FromBillionths(negative ? -Limits::max() : Limits::max());
}

Number toNumber(const std::wstring& digits, bool negative)
{
    Number number;
    const bool fits = Number::TryParse(CXString(std::wstring_view(digits)), number);
    if (!fits)
        return limitOfNumber(negative);
    return negative ? -number : number;
}

} // namespace

UITypedNumber UITypedNumber::read(const CXString& text, wchar_t decimalSeparator)
{
    std::wstring characters;
    for (const wchar_t character : text.View())
        if (!isInvisible(character))
            characters += plain(character);

    UITypedNumber typed;
    std::wstring_view rest = trimmed(characters);
    if (rest.empty()) {
        typed.fault = Fault::Empty;
        return typed;
    }
    const bool negative = rest.front() == L'-';
    if (negative || rest.front() == L'+')
        rest = trimmed(rest.substr(1));
    const std::size_t length = lengthOfNumber(rest);
    const auto digits = plainNumber(rest.substr(0, length), decimalSeparator);
    if (!digits) {
        typed.fault = Fault::NotANumber;
        return typed;
    }
    typed.number = toNumber(*digits, negative);
    typed.unit = CXString(trimmed(rest.substr(length)));
    return typed;
}

CXString UITypedNumber::withPlainDigits(const CXString& text)
{
    std::wstring characters;
    for (const wchar_t character : text.View())
        if (!isInvisible(character))
            characters += plainDigit(character);
    return CXString(std::wstring_view(characters));
}
