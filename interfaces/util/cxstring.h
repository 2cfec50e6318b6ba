#pragma once
// CXString: the wide string of every text in the driver.
//
// Copies share one reference-counted buffer: copying costs an atomic increment and never
// allocates; an empty string owns no buffer at all. A string is cloned when a shared one is
// written to. Different CXString objects may be used on different threads at the same time even
// when they share a buffer; one object may not.
//
// Text is UTF-16 on Windows and UTF-32 on the host (the width of wchar_t). Whatever leaves the
// process goes through ToUtf8 or ToUtf16Le. Positions and lengths count wchar_t units and are
// clamped to the string, never an error. std::bad_alloc and std::length_error are the only
// exceptions, and they leave the string as it was.

#include "utilapi.h"

#include <compare>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

struct HWND__;

class O7UTIL_API CXString
{
public:
    CXString() noexcept = default;
    CXString(const CXString& other) noexcept;
    CXString(CXString&& other) noexcept;
    /// A null pointer gives the empty string.
    CXString(const wchar_t* text);
    /// Takes exactly `length` characters, zeros included; a negative length gives the empty string.
    CXString(const wchar_t* text, int length);
    /// From UTF-8; each malformed sequence becomes U+FFFD.
    explicit CXString(const char* utf8);
    explicit CXString(std::wstring_view text);
    ~CXString();

    CXString& operator=(const CXString& other) noexcept;
    CXString& operator=(CXString&& other) noexcept;
    CXString& operator=(const wchar_t* text);

    /// Zero-terminated; valid until the string is written to or destroyed. Never null.
    const wchar_t* c_str() const noexcept;
    std::wstring_view View() const noexcept;
    int GetLength() const noexcept;
    bool IsEmpty() const noexcept;
    /// True when nothing but white space is there (true for the empty string).
    bool IsBlank() const noexcept;
    /// The character at `index`, or zero outside the string.
    wchar_t GetAt(int index) const noexcept;
    void Empty() noexcept;

    CXString& operator+=(const CXString& text);
    CXString& operator+=(const wchar_t* text);
    CXString& operator+=(std::wstring_view text);
    CXString& operator+=(wchar_t character);

    /// Ordinal comparison by character value, independent of any locale: negative, 0 or positive.
    int Compare(const CXString& other) const noexcept;
    int Compare(const wchar_t* other) const noexcept;
    /// Ordinal comparison that takes no notice of case (the operating system's invariant casing).
    int CompareNoCase(const CXString& other) const noexcept;
    int CompareNoCase(const wchar_t* other) const noexcept;

    /// Position of the first occurrence at or after `start`, or -1. An empty text is found nowhere.
    int Find(const CXString& text, int start = 0) const noexcept;
    int Find(const wchar_t* text, int start = 0) const noexcept;
    int Find(wchar_t character, int start = 0) const noexcept;
    int ReverseFind(wchar_t character) const noexcept;

    CXString Left(int count) const;
    CXString Right(int count) const;
    /// `count` characters from `start`; a negative count means "to the end".
    CXString Mid(int start, int count = -1) const;

    /// Takes every occurrence out; returns how many there were.
    int Remove(wchar_t character);
    int Remove(const CXString& text);
    /// Replaces every occurrence, left to right, without looking at what was put in; returns how
    /// many there were.
    int Replace(const CXString& from, const CXString& to);

    CXString& MakeUpper();
    CXString& MakeLower();
    /// Takes white space off both ends.
    CXString& Trim();

    /// The parts between separators, in order. Empty parts are kept, so that n separators always
    /// give n + 1 parts; the empty string has no part. An empty separator gives the whole string.
    std::vector<CXString> Tokenize(const CXString& separator) const;

    /// Formats like printf, with one meaning on every platform and in every locale:
    /// %s and %ls take a wide string, %S and %hs a UTF-8 one, a null string shows as "(null)";
    /// %c a wide character, %C and %hc a narrow one; d i u o x X with hh h l ll j z t I32 I64 I;
    /// f F e E g G with a point for the decimal separator; %p; %%. Flags, width and precision
    /// (also as *) as in printf. On anything else (%n, an unknown letter, a width or precision
    /// above 65535, a null format) returns false and leaves the string as it was.
    /// Arguments may point into the string itself.
    bool Format(const wchar_t* format, ...);
    bool FormatV(const wchar_t* format, std::va_list arguments);
    /// The formatted text, or the empty string when formatting fails.
    static CXString Formatted(const wchar_t* format, ...);

    /// A private, writable buffer of at least `minimumLength` characters plus the terminator,
    /// holding the present text. Valid until ReleaseBuffer or any other operation on the string.
    wchar_t* GetBuffer(int minimumLength = 0);
    /// As GetBuffer, and the string is `length` characters long from now on (new ones are zero).
    wchar_t* GetBufferSetLength(int length);
    /// Ends the writing: the string is `newLength` characters long, or reaches to the first zero
    /// when negative. Never longer than the buffer.
    void ReleaseBuffer(int newLength = -1);

    /// UTF-8; an unpaired surrogate becomes U+FFFD.
    std::string ToUtf8() const;
    static CXString FromUtf8(std::string_view utf8);
    /// Little-endian UTF-16 without a byte-order mark or terminator.
    std::vector<std::uint8_t> ToUtf16Le() const;
    /// An odd last byte is left out. Unpaired surrogates are kept.
    static CXString FromUtf16Le(const std::uint8_t* bytes, std::size_t byteCount);

#if defined(_WIN32)
    /// Sets the text of the window (SetWindowTextW); false when the window refuses.
    bool SetWindowTextW(HWND__* window) const;
#endif

    friend bool operator==(const CXString& a, const CXString& b) noexcept
    {
        return a.m_text == b.m_text || a.View() == b.View();
    }
    friend bool operator==(const CXString& a, const wchar_t* b) noexcept
    {
        return a.Compare(b) == 0;
    }
    friend std::strong_ordering operator<=>(const CXString& a, const CXString& b) noexcept
    {
        return a.Compare(b) <=> 0;
    }
    friend CXString operator+(CXString a, const CXString& b)
    {
        a += b;
        return a;
    }
    friend CXString operator+(CXString a, const wchar_t* b)
    {
        a += b;
        return a;
    }
    friend CXString operator+(const wchar_t* a, const CXString& b)
    {
        CXString sum(a);
        sum += b;
        return sum;
    }

private:
    void release() noexcept;
    bool isUniqueWithRoom(int capacity) const noexcept;
    void reserveUnique(int capacity);
    void setLength(int length) noexcept;

    // Points at the characters inside the shared buffer, so that a debugger shows the text; null
    // when empty.
    wchar_t* m_text = nullptr;
};

template <> struct std::hash<CXString>
{
    std::size_t operator()(const CXString& text) const noexcept
    {
        return std::hash<std::wstring_view>{}(text.View());
    }
};
