#include "pixelscaler.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using o7::PixelImage;

constexpr std::uint32_t kRed = 0xFFFF0000U;
constexpr std::uint32_t kBlue = 0xFF0000FFU;

TEST(PixelScaler, TheSameSizeGivesTheSamePixels)
{
    const PixelImage image{3, 2, {kRed, 0, kBlue, 0x80800000U, kBlue, 0}};
    EXPECT_EQ(image.pixels, o7::scaled(image, 3, 2).pixels);
}

TEST(PixelScaler, OneColourStaysWhatItIsInEverySize)
{
    for (const int from : {1, 2, 5, 32}) {
        const PixelImage image{
            from, from,
            std::vector<std::uint32_t>(static_cast<std::size_t>(from * from), 0xFF123456U)};
        for (const int to : {1, 3, 24, 65}) {
            const PixelImage result = o7::scaled(image, to, from);
            ASSERT_EQ(static_cast<std::size_t>(to * from), result.pixels.size());
            EXPECT_TRUE(std::all_of(result.pixels.begin(), result.pixels.end(),
                                    [](std::uint32_t pixel) { return pixel == 0xFF123456U; }))
                << from << " to " << to;
        }
    }
}

TEST(PixelScaler, AnEdgeBecomesARamp)
{
    const PixelImage edge{2, 1, {0, 0xFFFFFFFFU}};
    const PixelImage wide = o7::scaled(edge, 8, 1);
    EXPECT_TRUE(std::is_sorted(wide.pixels.begin(), wide.pixels.end()));
    EXPECT_EQ(0U, wide.pixels.front());
    EXPECT_EQ(0xFFFFFFFFU, wide.pixels.back());
    // A single line among many is thinned, not dropped.
    PixelImage line{9, 1, std::vector<std::uint32_t>(9)};
    line.pixels[4] = 0xFFFFFFFFU;
    const PixelImage small = o7::scaled(line, 3, 1);
    EXPECT_GT(small.pixels[1] >> 24U, 40U);
    EXPECT_LT(small.pixels[1] >> 24U, 255U);
}

} // namespace
