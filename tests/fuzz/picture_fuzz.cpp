// What a picture file says about itself may be anything; a picture that is let through is small
// enough for the scaler too, in any size.

#include "picturecheck.h"
#include "pixelscaler.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const bool accepted = o7::isDecodablePicture({data, size});
    if (accepted && size < 4) {
        std::abort();
    }
    if (size < 4) {
        return 0;
    }
    const std::size_t width = data[0] % 40U + 1;
    const std::size_t height = data[1] % 40U + 1;
    o7::PixelImage image{static_cast<int>(width), static_cast<int>(height), {}};
    for (std::size_t i = 0; i < width * height; ++i) {
        const std::uint32_t alpha = data[i % size];
        image.pixels.push_back(alpha << 24U | alpha / 2 << 8U | alpha);
    }
    const o7::PixelImage result = o7::scaled(image, data[2] % 80 + 1, data[3] % 80 + 1);
    for (const std::uint32_t pixel : result.pixels) {
        if ((pixel & 0xFFU) > pixel >> 24U) {
            std::abort(); // no longer premultiplied
        }
    }
    return 0;
}
