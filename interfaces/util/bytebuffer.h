#pragma once
// ByteBuffer: bytes in memory, and the form in which they are stored one after another.
//
// The stream form of a buffer is its byte count (4 bytes, little-endian) and then the bytes. A
// buffer that holds a text holds it as little-endian UTF-16 without mark or terminator. Several
// buffers in stream form may follow each other in one larger buffer.

#include "cxstring.h"
#include "utilapi.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class O7UTIL_API ByteBuffer
{
public:
    ByteBuffer() noexcept = default;
    ByteBuffer(const std::uint8_t* bytes, std::size_t count);
    explicit ByteBuffer(const CXString& text);

    const std::uint8_t* data() const noexcept { return m_bytes.data(); }
    std::uint8_t* data() noexcept { return m_bytes.data(); }
    std::size_t size() const noexcept { return m_bytes.size(); }
    bool empty() const noexcept { return m_bytes.empty(); }
    std::span<const std::uint8_t> bytes() const noexcept { return m_bytes; }
    void clear() noexcept { m_bytes.clear(); }
    /// New bytes are zero.
    void resize(std::size_t count) { m_bytes.resize(count); }

    /// The bytes may lie inside this buffer. A null pointer or a count of 0 appends nothing.
    void appendLpbyte(const std::uint8_t* bytes, std::size_t count);
    void appendUint32(std::uint32_t value);
    /// Reads 4 bytes at `position` and moves it on; false, and nothing changed, when fewer are
    /// there.
    bool readUint32(std::size_t& position, std::uint32_t& value) const noexcept;

    /// The bytes as little-endian UTF-16, up to a zero character; an odd last byte is left out.
    CXString getAsStringValue() const;

    /// Appends this buffer's stream form to `stream`, which may be this buffer itself.
    /// Throws std::length_error for more than 4 GiB.
    void persistToByteStream(ByteBuffer& stream) const;
    /// Takes the contents from the stream form at `position` and moves it behind. The count is
    /// believed only as far as bytes follow it: when fewer do, returns false and changes nothing.
    bool initializeFromByteStream(const ByteBuffer& stream, std::size_t& position);

    friend bool operator==(const ByteBuffer&, const ByteBuffer&) = default;

private:
    std::vector<std::uint8_t> m_bytes;
};
