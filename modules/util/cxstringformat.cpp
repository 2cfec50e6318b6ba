// CXString::Format. Written out rather than handed to the C library, whose wide printf means
// different things by %s on different platforms and takes the decimal point from the host
// program's locale.

#include "cxstring.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <type_traits>

namespace {

constexpr int kLargestNumber = 65535; // width and precision

enum class Size
{
    Default,
    Char,
    Short,
    Long,
    Int32,
    Int64,   // also long long and intmax_t, which have 64 bits everywhere
    Pointer, // size_t and ptrdiff_t
    LongDouble
};

struct Conversion
{
    bool left = false;
    bool plus = false;
    bool space = false;
    bool alternate = false;
    bool zero = false;
    int width = 0;
    int precision = -1;
    Size size = Size::Default;
    wchar_t letter = L'\0';
};

// Owns its copy of the arguments, so that every way out of formatting ends it.
class Arguments
{
public:
    explicit Arguments(std::va_list arguments) { va_copy(m_list, arguments); }
    ~Arguments() { va_end(m_list); }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    template <class T> T next() { return va_arg(m_list, T); }

private:
    std::va_list m_list{};
};

class FormatReader
{
public:
    FormatReader(const wchar_t* format, Arguments& arguments) : m_at(format), m_arguments(arguments)
    {
    }

    bool atEnd() const { return *m_at == L'\0'; }

    // The text up to the next conversion or the end.
    std::wstring_view takeText()
    {
        const wchar_t* const start = m_at;
        while (*m_at != L'\0' && *m_at != L'%') {
            ++m_at;
        }
        return {start, static_cast<std::size_t>(m_at - start)};
    }

    // Stands at a "%"; false when what follows is no conversion.
    bool takeConversion(Conversion& conversion)
    {
        ++m_at;
        takeFlags(conversion);
        if (!takeWidth(conversion) || !takePrecision(conversion)) {
            return false;
        }
        takeSize(conversion);
        conversion.letter = *m_at;
        if (conversion.letter == L'\0') {
            return false;
        }
        ++m_at;
        return true;
    }

private:
    bool take(wchar_t wanted)
    {
        if (*m_at != wanted) {
            return false;
        }
        ++m_at;
        return true;
    }

    bool take(std::wstring_view wanted)
    {
        // Compares no further than the terminator of the format.
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            if (m_at[i] != wanted[i]) {
                return false;
            }
        }
        m_at += wanted.size();
        return true;
    }

    void takeFlags(Conversion& conversion)
    {
        for (;; ++m_at) {
            switch (*m_at) {
            case L'-':
                conversion.left = true;
                break;
            case L'+':
                conversion.plus = true;
                break;
            case L' ':
                conversion.space = true;
                break;
            case L'#':
                conversion.alternate = true;
                break;
            case L'0':
                conversion.zero = true;
                break;
            default:
                return;
            }
        }
    }

    bool takeDigits(int& number)
    {
        number = 0;
        for (; *m_at >= L'0' && *m_at <= L'9'; ++m_at) {
            number = number * 10 + (*m_at - L'0');
            if (number > kLargestNumber) {
                return false;
            }
        }
        return true;
    }

    bool takeWidth(Conversion& conversion)
    {
        if (!take(L'*')) {
            return takeDigits(conversion.width);
        }
        const int width = m_arguments.next<int>();
        if (width < -kLargestNumber || width > kLargestNumber) {
            return false;
        }
        conversion.left = conversion.left || width < 0;
        conversion.width = width < 0 ? -width : width;
        return true;
    }

    bool takePrecision(Conversion& conversion)
    {
        if (!take(L'.')) {
            return true;
        }
        if (!take(L'*')) {
            return takeDigits(conversion.precision);
        }
        conversion.precision = std::max(m_arguments.next<int>(), -1);
        return conversion.precision <= kLargestNumber;
    }

    void takeSize(Conversion& conversion)
    {
        struct Prefix
        {
            std::wstring_view text;
            Size size;
        };
        // Longer prefixes stand before those they begin with.
        static constexpr Prefix kPrefixes[] = {
            {L"hh", Size::Char},   {L"h", Size::Short},   {L"ll", Size::Int64},
            {L"l", Size::Long},    {L"w", Size::Long},    {L"I64", Size::Int64},
            {L"I32", Size::Int32}, {L"I", Size::Pointer}, {L"z", Size::Pointer},
            {L"t", Size::Pointer}, {L"j", Size::Int64},   {L"L", Size::LongDouble},
        };
        for (const Prefix& prefix : kPrefixes) {
            if (take(prefix.text)) {
                conversion.size = prefix.size;
                return;
            }
        }
    }

    const wchar_t* m_at;
    Arguments& m_arguments;
};

std::int64_t takeSigned(const Conversion& conversion, Arguments& arguments)
{
    switch (conversion.size) {
    case Size::Pointer:
        return arguments.next<std::ptrdiff_t>();
    case Size::Char:
        return static_cast<signed char>(arguments.next<int>());
    case Size::Short:
        return static_cast<short>(arguments.next<int>());
    case Size::Long:
        return arguments.next<long>();
    case Size::Int64:
        return arguments.next<long long>();
    default:
        return arguments.next<int>();
    }
}

std::uint64_t takeUnsigned(const Conversion& conversion, Arguments& arguments)
{
    switch (conversion.size) {
    case Size::Pointer:
        return arguments.next<std::size_t>();
    case Size::Char:
        return static_cast<unsigned char>(arguments.next<unsigned>());
    case Size::Short:
        return static_cast<unsigned short>(arguments.next<unsigned>());
    case Size::Long:
        return arguments.next<unsigned long>();
    case Size::Int64:
        return arguments.next<unsigned long long>();
    default:
        return arguments.next<unsigned>();
    }
}

// Appends to the text, filling up to the width: blanks before or after, or zeros between prefix
// (sign or "0x") and body.
void appendPadded(std::wstring& out, const Conversion& conversion, std::wstring_view prefix,
                  std::wstring_view body, bool zeros)
{
    const std::size_t used = prefix.size() + body.size();
    const auto width = static_cast<std::size_t>(conversion.width);
    const std::size_t fill = width > used ? width - used : 0;
    if (!conversion.left && !zeros) {
        out.append(fill, L' ');
    }
    out += prefix;
    if (!conversion.left && zeros) {
        out.append(fill, L'0');
    }
    out += body;
    if (conversion.left) {
        out.append(fill, L' ');
    }
}

std::wstring widen(const char* begin, const char* end)
{
    return {begin, end};
}

void makeUpperAscii(std::wstring& text)
{
    for (wchar_t& character : text) {
        if (character >= L'a' && character <= L'z') {
            character = static_cast<wchar_t>(character - L'a' + L'A');
        }
    }
}

std::wstring_view signPrefix(const Conversion& conversion, bool negative)
{
    return negative ? L"-" : conversion.plus ? L"+" : conversion.space ? L" " : L"";
}

std::wstring digitsOf(const Conversion& conversion, std::uint64_t value, int base)
{
    std::array<char, 24> digits{}; // 22 octal digits at the most
    char* const end =
        value == 0 && conversion.precision == 0
            ? digits.data()
            : std::to_chars(digits.data(), digits.data() + digits.size(), value, base).ptr;
    std::wstring body = widen(digits.data(), end);
    const auto least = static_cast<std::size_t>(std::max(conversion.precision, 0));
    if (body.size() < least) {
        body.insert(0, least - body.size(), L'0');
    }
    return body;
}

void appendInteger(std::wstring& out, const Conversion& conversion, std::wstring_view prefix,
                   const std::wstring& body)
{
    appendPadded(out, conversion, prefix, body, conversion.zero && conversion.precision < 0);
}

void appendSigned(std::wstring& out, const Conversion& conversion, std::int64_t value)
{
    const bool negative = value < 0;
    const auto bits = static_cast<std::uint64_t>(value);
    appendInteger(out, conversion, signPrefix(conversion, negative),
                  digitsOf(conversion, negative ? 0 - bits : bits, 10));
}

void appendUnsigned(std::wstring& out, const Conversion& conversion, std::uint64_t value)
{
    const bool octal = conversion.letter == L'o';
    const bool decimal = conversion.letter == L'u';
    std::wstring body = digitsOf(conversion, value, octal ? 8 : decimal ? 10 : 16);
    std::wstring_view prefix;
    if (conversion.alternate && octal && (body.empty() || body[0] != L'0')) {
        body.insert(0, 1, L'0');
    } else if (conversion.alternate && !octal && !decimal && value != 0) {
        prefix = conversion.letter == L'X' ? L"0X" : L"0x";
    }
    if (conversion.letter == L'X') {
        makeUpperAscii(body);
    }
    appendInteger(out, conversion, prefix, body);
}

bool appendFloating(std::wstring& out, const Conversion& conversion, Arguments& arguments)
{
    if (conversion.alternate) {
        return false;
    }
    const double value = conversion.size == Size::LongDouble
                             ? static_cast<double>(arguments.next<long double>())
                             : arguments.next<double>();
    const bool upper = conversion.letter < L'a';
    const auto kind =
        static_cast<wchar_t>(upper ? conversion.letter + (L'a' - L'A') : conversion.letter);
    const std::chars_format format = kind == L'f'   ? std::chars_format::fixed
                                     : kind == L'e' ? std::chars_format::scientific
                                                    : std::chars_format::general;
    const int precision = conversion.precision < 0 ? 6 : conversion.precision;
    // A double has at most 309 places before the separator.
    std::string digits(static_cast<std::size_t>(precision) + 330, '\0');
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(),
                                       std::fabs(value), format, precision);
    if (written.ec != std::errc()) {
        return false;
    }
    std::wstring body = widen(digits.data(), written.ptr);
    if (upper) {
        makeUpperAscii(body);
    }
    appendPadded(out, conversion, signPrefix(conversion, std::signbit(value)), body,
                 conversion.zero && std::isfinite(value));
    return true;
}

// At most `precision` characters are looked at, so that an unterminated array can be shown.
template <class Character>
std::basic_string_view<Character> boundedView(const Character* text, int precision)
{
    std::size_t length = 0;
    while ((precision < 0 || length < static_cast<std::size_t>(precision)) &&
           text[length] != Character()) {
        ++length;
    }
    return {text, length};
}

void appendString(std::wstring& out, const Conversion& conversion, Arguments& arguments)
{
    const bool narrow = conversion.size == Size::Short ||
                        (conversion.letter == L'S' && conversion.size != Size::Long);
    CXString converted;
    std::wstring_view body = L"(null)";
    if (narrow) {
        if (const char* const text = arguments.next<const char*>(); text != nullptr) {
            converted = CXString::FromUtf8(boundedView(text, conversion.precision));
            body = converted.View();
        }
    } else if (const wchar_t* const text = arguments.next<const wchar_t*>(); text != nullptr) {
        body = boundedView(text, conversion.precision);
    }
    appendPadded(out, conversion, L"", body, false);
}

void appendCharacter(std::wstring& out, const Conversion& conversion, Arguments& arguments)
{
    // wint_t is promoted to int, or is unsigned int; both are read alike.
    const int value = arguments.next<int>();
    const bool narrow = conversion.size == Size::Short ||
                        (conversion.letter == L'C' && conversion.size != Size::Long);
    const auto character = narrow ? static_cast<wchar_t>(static_cast<unsigned char>(value))
                                  : static_cast<wchar_t>(value);
    appendPadded(out, conversion, L"", std::wstring_view(&character, 1), false);
}

void appendPointer(std::wstring& out, Conversion conversion, Arguments& arguments)
{
    conversion.letter = L'X';
    conversion.alternate = false;
    conversion.precision = static_cast<int>(2 * sizeof(void*));
    appendUnsigned(out, conversion,
                   reinterpret_cast<std::uintptr_t>(arguments.next<const void*>()));
}

bool appendConversion(std::wstring& out, const Conversion& conversion, Arguments& arguments)
{
    switch (conversion.letter) {
    case L'%':
        out += L'%';
        return true;
    case L'd':
    case L'i':
        appendSigned(out, conversion, takeSigned(conversion, arguments));
        return true;
    case L'u':
    case L'o':
    case L'x':
    case L'X':
        appendUnsigned(out, conversion, takeUnsigned(conversion, arguments));
        return true;
    case L'f':
    case L'F':
    case L'e':
    case L'E':
    case L'g':
    case L'G':
        return appendFloating(out, conversion, arguments);
    case L's':
    case L'S':
        appendString(out, conversion, arguments);
        return true;
    case L'c':
    case L'C':
        appendCharacter(out, conversion, arguments);
        return true;
    case L'p':
        appendPointer(out, conversion, arguments);
        return true;
    default:
        return false;
    }
}

} // namespace

bool CXString::FormatV(const wchar_t* format, std::va_list arguments)
{
    if (format == nullptr) {
        return false;
    }
    Arguments taken(arguments);
    FormatReader reader(format, taken);
    std::wstring out;
    while (!reader.atEnd()) {
        out += reader.takeText();
        if (reader.atEnd()) {
            break;
        }
        Conversion conversion;
        if (!reader.takeConversion(conversion) || !appendConversion(out, conversion, taken)) {
            return false;
        }
    }
    *this = CXString(std::wstring_view(out));
    return true;
}

bool CXString::Format(const wchar_t* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const bool formatted = FormatV(format, arguments);
    va_end(arguments);
    return formatted;
}

CXString CXString::Formatted(const wchar_t* format, ...)
{
    CXString result;
    std::va_list arguments;
    va_start(arguments, format);
    result.FormatV(format, arguments);
    va_end(arguments);
    return result;
}
