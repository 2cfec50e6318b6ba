#pragma once

#include <cstdint>
#include <span>

namespace o7 {

/// Whether a picture file may be given to the system's decoder: it is a GIF, JPEG, bitmap, icon or
/// metafile, its header promises a size that a page can have (at most 16,384 pixels a side and 32
/// million in all), and every image of a GIF has a colour table. A decoder reserves what the header
/// promises before it finds out that the rest is missing, and some fail badly without colours.
/// Says nothing about the rest of the data, which the decoder judges itself.
bool isDecodablePicture(std::span<const std::uint8_t> data) noexcept;

} // namespace o7
