#pragma once
// StringBuffer: the shared, reference-counted memory of a CXString: this header and, right behind
// it, the characters.

#include <atomic>

namespace o7 {

struct StringBuffer
{
    std::atomic<int> references{1};
    int length = 0;
    int capacity = 0; ///< characters, without the terminator

    /// An empty text with one reference and room for `capacity` characters. The only place where
    /// strings take memory.
    static StringBuffer* create(int capacity);
    /// Frees the buffer; to be called by whoever gave up the last reference.
    static void destroy(StringBuffer* buffer) noexcept;

    wchar_t* text() noexcept { return reinterpret_cast<wchar_t*>(this + 1); }
    static StringBuffer* of(wchar_t* text) noexcept
    {
        return reinterpret_cast<StringBuffer*>(text) - 1;
    }
};

} // namespace o7
