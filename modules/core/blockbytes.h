#pragma once

#include "cxstring.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace o7 {

/// Puts numbers and texts behind one another, little-endian.
class BlockWriter
{
public:
    const std::vector<std::uint8_t>& Bytes() const { return m_bytes; }
    std::vector<std::uint8_t> Take() { return std::move(m_bytes); }

    void Fixed(std::uint32_t value, int bytes);
    /// Seven bits a byte, the lowest first.
    void Unsigned(std::uint64_t value);
    /// Signs alternate, so that small numbers of either sign stay short.
    void Signed(std::int64_t value);
    void Text(std::string_view utf8);
    void Append(const std::vector<std::uint8_t>& bytes);

private:
    std::vector<std::uint8_t> m_bytes;
};

/// Reads what BlockWriter wrote; every operation answers false instead of reading past the end. The
/// bytes are borrowed.
class BlockReader
{
public:
    BlockReader() = default;
    BlockReader(const std::uint8_t* bytes, std::size_t size) : m_at(bytes), m_left(size) {}

    bool AtEnd() const { return m_left == 0; }
    std::size_t Left() const { return m_left; }
    const std::uint8_t* At() const { return m_at; }

    bool Fixed(std::uint32_t& value, int bytes);
    bool Byte(std::uint8_t& value);
    bool Unsigned(std::uint64_t& value);
    bool Signed(std::int64_t& value);
    bool Int(int& value);
    /// The rest as text.
    CXString Text();
    /// The next `size` bytes for a reader of their own.
    bool Block(std::uint64_t size, BlockReader& block);

private:
    const std::uint8_t* m_at = nullptr;
    std::size_t m_left = 0;
};

} // namespace o7
