#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace o7 {

/// The CRC-32 of ISO 3309 (as in zip and PNG files).
std::uint32_t Crc32(const std::uint8_t* bytes, std::size_t size);
std::uint32_t Crc32(std::string_view text);

} // namespace o7
