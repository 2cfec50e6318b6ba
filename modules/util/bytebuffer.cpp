#include "bytebuffer.h"

#include <limits>
#include <stdexcept>

namespace {

constexpr std::size_t kCountSize = 4;

} // namespace

ByteBuffer::ByteBuffer(const std::uint8_t* bytes, std::size_t count)
{
    appendLpbyte(bytes, count);
}

ByteBuffer::ByteBuffer(const CXString& text) : m_bytes(text.ToUtf16Le())
{
}

void ByteBuffer::appendLpbyte(const std::uint8_t* bytes, std::size_t count)
{
    if (bytes == nullptr || count == 0) {
        return;
    }
    // Through a copy, since growing may move the very bytes that are to be appended.
    const std::vector<std::uint8_t> added(bytes, bytes + count);
    m_bytes.insert(m_bytes.end(), added.begin(), added.end());
}

void ByteBuffer::appendUint32(std::uint32_t value)
{
    for (unsigned shift = 0; shift < 32; shift += 8) {
        m_bytes.push_back(static_cast<std::uint8_t>((value >> shift) & 0xFF));
    }
}

bool ByteBuffer::readUint32(std::size_t& position, std::uint32_t& value) const noexcept
{
    if (position > m_bytes.size() || m_bytes.size() - position < kCountSize) {
        return false;
    }
    value = 0;
    for (unsigned i = 0; i < kCountSize; ++i) {
        value |= static_cast<std::uint32_t>(m_bytes[position + i]) << (8 * i);
    }
    position += kCountSize;
    return true;
}

CXString ByteBuffer::getAsStringValue() const
{
    std::size_t length = 0;
    while (length + 1 < m_bytes.size() && (m_bytes[length] != 0 || m_bytes[length + 1] != 0)) {
        length += 2;
    }
    return CXString::FromUtf16Le(m_bytes.data(), length);
}

void ByteBuffer::persistToByteStream(ByteBuffer& stream) const
{
    const std::size_t count = m_bytes.size();
    if (count > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("ByteBuffer: too long for a byte stream");
    }
    const ByteBuffer contents(*this); // `stream` may be this buffer
    stream.appendUint32(static_cast<std::uint32_t>(count));
    stream.appendLpbyte(contents.data(), count);
}

bool ByteBuffer::initializeFromByteStream(const ByteBuffer& stream, std::size_t& position)
{
    std::size_t at = position;
    std::uint32_t count = 0;
    if (!stream.readUint32(at, count) || stream.size() - at < count) {
        return false;
    }
    ByteBuffer contents(stream.data() + at, count);
    m_bytes.swap(contents.m_bytes);
    position = at + count;
    return true;
}
