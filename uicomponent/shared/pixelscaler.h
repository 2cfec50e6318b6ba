#pragma once

#include <cstdint>
#include <vector>

namespace o7 {

/// A picture in memory: 0xAARRGGBB with the colours premultiplied by alpha, rows from the top down.
struct PixelImage
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels; ///< width * height
};

/// The picture in another size (pixels, at least 1). Each new pixel is the weighted mean of those
/// under it when the picture shrinks, and a blend of its neighbours when it grows, so slanted lines
/// and curves keep smooth edges; the same size gives the same pixels.
PixelImage scaled(const PixelImage& image, int width, int height);

} // namespace o7
