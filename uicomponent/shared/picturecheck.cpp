#include "picturecheck.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace o7 {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint64_t kMaxSide = 16384;
constexpr std::uint64_t kMaxPixels = std::uint64_t{32} * 1024 * 1024;

bool isSensible(std::uint64_t width, std::uint64_t height)
{
    return width >= 1 && height >= 1 && width <= kMaxSide && height <= kMaxSide &&
           width * height <= kMaxPixels;
}

template <std::size_t N> bool hasAt(Bytes data, std::size_t offset, const char (&text)[N])
{
    const std::size_t length = N - 1;
    return data.size() >= offset + length &&
           std::equal(text, text + length, data.begin() + static_cast<std::ptrdiff_t>(offset),
                      [](char wanted, std::uint8_t byte) {
                          return static_cast<std::uint8_t>(wanted) == byte;
                      });
}

/// Little-endian; the caller has made sure that the bytes are there.
std::uint32_t little(Bytes data, std::size_t offset, std::size_t count)
{
    std::uint32_t value = 0;
    for (std::size_t i = count; i > 0; --i) {
        value = value << 8 | data[offset + i - 1];
    }
    return value;
}

/// Length of the colour table that a packed byte of a GIF tells, 0 without one.
std::size_t colourTable(std::uint8_t packed)
{
    return (packed & 0x80U) != 0 ? std::size_t{3} << ((packed & 7U) + 1) : 0;
}

/// Behind a row of sub-blocks, or behind the data when their end is missing.
std::size_t behindSubBlocks(Bytes data, std::size_t position)
{
    while (position < data.size() && data[position] != 0) {
        position += data[position] + std::size_t{1};
    }
    return position + 1;
}

bool isDecodableGif(Bytes data)
{
    constexpr std::size_t kHeader = 13;
    constexpr std::size_t kDescriptor = 10;
    if (data.size() < kHeader || !isSensible(little(data, 6, 2), little(data, 8, 2))) {
        return false;
    }
    const std::size_t global = colourTable(data[10]);
    std::size_t position = kHeader + global;
    bool hasImage = false;
    while (position + 1 < data.size()) {
        if (data[position] == '!') {
            position = behindSubBlocks(data, position + 2);
        } else if (data[position] == ',' && data.size() - position >= kDescriptor) {
            const std::size_t local = colourTable(data[position + 9]);
            if (!isSensible(little(data, position + 5, 2), little(data, position + 7, 2)) ||
                global + local == 0) {
                return false;
            }
            hasImage = true;
            position = behindSubBlocks(data, position + kDescriptor + local + 1);
        } else {
            break;
        }
    }
    return hasImage;
}

/// Walks the segments up to the frame header (markers C0 to CF, except the three that are tables).
bool isDecodableJpeg(Bytes data)
{
    std::size_t position = 2;
    while (position + 9 <= data.size() && data[position] == 0xFF) {
        const unsigned marker = data[position + 1];
        if (marker == 0xFF) { // padding
            ++position;
            continue;
        }
        const bool isFrame =
            marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (isFrame) {
            const unsigned height = data[position + 5] * 256U + data[position + 6];
            const unsigned width = data[position + 7] * 256U + data[position + 8];
            return isSensible(width, height);
        }
        position += 2 + data[position + 2] * std::size_t{256} + data[position + 3];
    }
    return false;
}

bool isDecodableBitmap(Bytes data)
{
    constexpr std::size_t kCoreHeader = 12;
    if (data.size() < 26) {
        return false;
    }
    if (little(data, 14, 4) == kCoreHeader) {
        return isSensible(little(data, 18, 2), little(data, 20, 2));
    }
    // A negative height says that the rows go from the top down.
    const std::uint32_t height = little(data, 22, 4);
    return isSensible(little(data, 18, 4), height > 0x80000000U ? 0U - height : height);
}

} // namespace

bool isDecodablePicture(Bytes data) noexcept
{
    if (hasAt(data, 0, "GIF")) {
        return isDecodableGif(data);
    }
    if (hasAt(data, 0, "\xFF\xD8\xFF")) {
        return isDecodableJpeg(data);
    }
    if (hasAt(data, 0, "BM")) {
        return isDecodableBitmap(data);
    }
    const bool isIcon = hasAt(data, 0, "\0\0\1\0");
    const bool isMetafile = hasAt(data, 0, "\xD7\xCD\xC6\x9A") || hasAt(data, 40, " EMF");
    return isIcon || isMetafile;
}

} // namespace o7
