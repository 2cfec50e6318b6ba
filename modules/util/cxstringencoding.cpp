// How CXString enters and leaves UTF-8 and UTF-16LE, whatever the width of wchar_t.

#include "cxstring.h"

namespace {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}
constexpr bool isSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

constexpr char32_t joinSurrogates(char32_t high, char32_t low)
{
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

char32_t unitAt(std::wstring_view text, std::size_t index)
{
    return static_cast<char32_t>(text[index]) & (sizeof(wchar_t) == 2 ? 0xFFFFU : 0xFFFFFFFFU);
}

// The code point at `index`, which moves behind it; a lone surrogate comes out as itself.
char32_t takeCodePoint(std::wstring_view text, std::size_t& index)
{
    const char32_t first = unitAt(text, index++);
    if (isHighSurrogate(first) && index < text.size() && isLowSurrogate(unitAt(text, index))) {
        return joinSurrogates(first, unitAt(text, index++));
    }
    return first > 0x10FFFF ? kReplacement : first;
}

void appendWide(std::wstring& text, char32_t codePoint)
{
    if (sizeof(wchar_t) == 2 && codePoint > 0xFFFF) {
        text += static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
    } else {
        text += static_cast<wchar_t>(codePoint);
    }
}

void appendUtf8(std::string& text, char32_t codePoint)
{
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (codePoint < 0x80) {
        put(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        put(0xC0 | (codePoint >> 6));
    } else {
        if (codePoint < 0x10000) {
            put(0xE0 | (codePoint >> 12));
        } else {
            put(0xF0 | (codePoint >> 18));
            put(0x80 | ((codePoint >> 12) & 0x3F));
        }
        put(0x80 | ((codePoint >> 6) & 0x3F));
    }
    put(0x80 | (codePoint & 0x3F));
}

// Length of the sequence that a lead byte announces, and the smallest code point it may carry.
struct Utf8Lead
{
    int length;
    char32_t bits;
    char32_t smallest;
};

Utf8Lead readLead(unsigned char lead)
{
    if (lead < 0x80) {
        return {1, lead, 0};
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return {2, lead & 0x1FU, 0x80};
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return {3, lead & 0x0FU, 0x800};
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        return {4, lead & 0x07U, 0x10000};
    }
    return {0, 0, 0};
}

// The code point at `index`, which moves behind it, or behind the bytes that no code point begins
// with.
char32_t takeUtf8(std::string_view utf8, std::size_t& index)
{
    const Utf8Lead lead = readLead(static_cast<unsigned char>(utf8[index++]));
    if (lead.length == 0) {
        return kReplacement;
    }
    char32_t codePoint = lead.bits;
    for (int i = 1; i < lead.length; ++i) {
        if (index >= utf8.size() || (static_cast<unsigned char>(utf8[index]) & 0xC0) != 0x80) {
            return kReplacement;
        }
        codePoint = (codePoint << 6) | (static_cast<unsigned char>(utf8[index++]) & 0x3F);
    }
    const bool bad = codePoint < lead.smallest || codePoint > 0x10FFFF || isSurrogate(codePoint);
    return bad ? kReplacement : codePoint;
}

} // namespace

std::string CXString::ToUtf8() const
{
    const std::wstring_view text = View();
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t index = 0; index < text.size();) {
        const char32_t codePoint = takeCodePoint(text, index);
        appendUtf8(utf8, isSurrogate(codePoint) ? kReplacement : codePoint);
    }
    return utf8;
}

CXString CXString::FromUtf8(std::string_view utf8)
{
    std::wstring text;
    text.reserve(utf8.size());
    for (std::size_t index = 0; index < utf8.size();) {
        appendWide(text, takeUtf8(utf8, index));
    }
    return CXString(std::wstring_view(text));
}

std::vector<std::uint8_t> CXString::ToUtf16Le() const
{
    const std::wstring_view text = View();
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size() * 2);
    const auto put = [&bytes](char32_t unit) {
        bytes.push_back(static_cast<std::uint8_t>(unit & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>((unit >> 8) & 0xFF));
    };
    for (std::size_t index = 0; index < text.size();) {
        const char32_t codePoint = takeCodePoint(text, index);
        if (codePoint > 0xFFFF) {
            put(0xD800 + ((codePoint - 0x10000) >> 10));
            put(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
        } else {
            put(codePoint);
        }
    }
    return bytes;
}

CXString CXString::FromUtf16Le(const std::uint8_t* bytes, std::size_t byteCount)
{
    const std::size_t units = bytes == nullptr ? 0 : byteCount / 2;
    const auto unit = [bytes](std::size_t index) {
        return static_cast<char32_t>(bytes[index * 2] | (bytes[index * 2 + 1] << 8));
    };
    std::wstring text;
    text.reserve(units);
    for (std::size_t index = 0; index < units; ++index) {
        const char32_t first = unit(index);
        if (isHighSurrogate(first) && index + 1 < units && isLowSurrogate(unit(index + 1))) {
            appendWide(text, joinSurrogates(first, unit(++index)));
        } else {
            text += static_cast<wchar_t>(first);
        }
    }
    return CXString(std::wstring_view(text));
}
