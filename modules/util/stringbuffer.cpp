#include "stringbuffer.h"

#include <cstddef>
#include <new>

namespace o7 {

static_assert(sizeof(StringBuffer) % alignof(wchar_t) == 0, "characters follow the header");

StringBuffer* StringBuffer::create(int capacity)
{
    const std::size_t characters = static_cast<std::size_t>(capacity) + 1;
    void* const memory = ::operator new(sizeof(StringBuffer) + characters * sizeof(wchar_t));
    auto* const buffer = new (memory) StringBuffer;
    buffer->capacity = capacity;
    buffer->text()[0] = L'\0';
    return buffer;
}

void StringBuffer::destroy(StringBuffer* buffer) noexcept
{
    buffer->~StringBuffer();
    ::operator delete(buffer);
}

} // namespace o7
