#include "crc32.h"

#include <array>

namespace o7 {
namespace {

constexpr std::array<std::uint32_t, 256> MakeTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t remainder = i;
        for (int bit = 0; bit < 8; ++bit)
            remainder = (remainder >> 1U) ^ ((remainder & 1U) != 0 ? 0xEDB88320U : 0U);
        table[i] = remainder;
    }
    return table;
}

constexpr std::array<std::uint32_t, 256> kTable = MakeTable();

std::uint32_t Step(std::uint32_t sum, std::uint8_t byte)
{
    return (sum >> 8U) ^ kTable[(sum ^ byte) & 0xFFU];
}

} // namespace

std::uint32_t Crc32(const std::uint8_t* bytes, std::size_t size)
{
    std::uint32_t sum = 0xFFFFFFFFU;
    for (std::size_t i = 0; i < size; ++i)
        sum = Step(sum, bytes[i]);
    return ~sum;
}

std::uint32_t Crc32(std::string_view text)
{
    std::uint32_t sum = 0xFFFFFFFFU;
    for (const char character : text)
        sum = Step(sum, static_cast<std::uint8_t>(character));
    return ~sum;
}

} // namespace o7
