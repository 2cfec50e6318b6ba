#include "blockbytes.h"

#include <climits>

namespace o7 {

void BlockWriter::Fixed(std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        m_bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void BlockWriter::Unsigned(std::uint64_t value)
{
    for (; value > 0x7F; value >>= 7U)
        m_bytes.push_back(static_cast<std::uint8_t>(value | 0x80U));
    m_bytes.push_back(static_cast<std::uint8_t>(value));
}

void BlockWriter::Signed(std::int64_t value)
{
    Unsigned((static_cast<std::uint64_t>(value) << 1U) ^ static_cast<std::uint64_t>(value >> 63));
}

void BlockWriter::Text(std::string_view utf8)
{
    for (const char character : utf8)
        m_bytes.push_back(static_cast<std::uint8_t>(character));
}

void BlockWriter::Append(const std::vector<std::uint8_t>& bytes)
{
    m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
}

bool BlockReader::Fixed(std::uint32_t& value, int bytes)
{
    value = 0;
    for (int i = 0; i < bytes; ++i) {
        std::uint8_t byte = 0;
        if (!Byte(byte))
            return false;
        value |= static_cast<std::uint32_t>(byte) << (8 * i);
    }
    return true;
}

bool BlockReader::Byte(std::uint8_t& value)
{
    if (m_left == 0)
        return false;
    value = *m_at++;
    --m_left;
    return true;
}

bool BlockReader::Unsigned(std::uint64_t& value)
{
    value = 0;
    for (unsigned shift = 0; shift < 64; shift += 7) {
        std::uint8_t byte = 0;
        if (!Byte(byte))
            return false;
        value |= static_cast<std::uint64_t>(byte & 0x7FU) << shift;
        if ((byte & 0x80U) == 0)
            return shift < 63 || byte <= 1;
    }
    return false;
}

bool BlockReader::Signed(std::int64_t& value)
{
    std::uint64_t raw = 0;
    if (!Unsigned(raw))
        return false;
    value = static_cast<std::int64_t>((raw >> 1U) ^ (0U - (raw & 1U)));
    return true;
}

bool BlockReader::Int(int& value)
{
    std::int64_t wide = 0;
    if (!Signed(wide) || wide < INT_MIN || wide > INT_MAX)
        return false;
    value = static_cast<int>(wide);
    return true;
}

CXString BlockReader::Text()
{
    const std::string_view text(reinterpret_cast<const char*>(m_at), m_left);
    m_at += m_left;
    m_left = 0;
    return CXString::FromUtf8(text);
}

bool BlockReader::Block(std::uint64_t size, BlockReader& block)
{
    if (size > m_left)
        return false;
    block = BlockReader(m_at, static_cast<std::size_t>(size));
    m_at += size;
    m_left -= static_cast<std::size_t>(size);
    return true;
}

} // namespace o7
