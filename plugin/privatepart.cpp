#include "privatepart.h"

#include <algorithm>

namespace o7 {
namespace {

constexpr std::uint32_t kSignature = 0x4D44374F; // "O7DM"
constexpr std::uint32_t kVersion = 1;

constexpr std::size_t kSignatureAt = 0;
constexpr std::size_t kVersionAt = 4; // version and header size in one number
constexpr std::size_t kBlockSizeAt = 8;
constexpr unsigned kHeaderSizeShift = 16;
constexpr std::uint32_t kVersionMask = 0xFFFF;

void put(std::span<std::uint8_t> bytes, std::size_t at, std::uint32_t number)
{
    for (std::size_t i = 0; i < 4; ++i) {
        bytes[at + i] = static_cast<std::uint8_t>(number >> (8 * i));
    }
}

std::uint32_t get(std::span<const std::uint8_t> bytes, std::size_t at)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        number |= static_cast<std::uint32_t>(bytes[at + i]) << (8 * i);
    }
    return number;
}

} // namespace

bool writePrivatePart(std::span<std::uint8_t, kPrivatePartSize> part,
                      std::span<const std::uint8_t> block)
{
    const bool fits = block.size() <= kPrivateBlockCapacity;
    if (!fits) {
        block = {};
    }
    std::ranges::fill(part, std::uint8_t{0});
    put(part, kSignatureAt, kSignature);
    put(part, kVersionAt,
        kVersion | static_cast<std::uint32_t>(kPrivateHeaderSize) << kHeaderSizeShift);
    put(part, kBlockSizeAt, static_cast<std::uint32_t>(block.size()));
    std::ranges::copy(block, part.begin() + kPrivateHeaderSize);
    return fits;
}

std::span<const std::uint8_t> readPrivatePart(std::span<const std::uint8_t> part)
{
    if (part.size() < kPrivateHeaderSize || get(part, kSignatureAt) != kSignature ||
        (get(part, kVersionAt) & kVersionMask) != kVersion) {
        return {};
    }
    const std::size_t header = get(part, kVersionAt) >> kHeaderSizeShift;
    const std::size_t size = get(part, kBlockSizeAt);
    if (header < kPrivateHeaderSize || header > part.size() || size > part.size() - header) {
        return {};
    }
    return part.subspan(header, size);
}

} // namespace o7
