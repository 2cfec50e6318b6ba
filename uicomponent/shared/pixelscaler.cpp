#include "pixelscaler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace o7 {

namespace {

/// The old pixels that make one new one, with weights that add up to 1.
struct Taps
{
    int first;
    std::vector<float> weights;
};

using Channels = std::array<float, 4>;

std::vector<Taps> tapsFor(int from, int to)
{
    const float step = static_cast<float>(from) / static_cast<float>(to);
    const float radius = std::max(1.0F, step);
    std::vector<Taps> all;
    all.reserve(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        const float centre = (static_cast<float>(i) + 0.5F) * step - 0.5F;
        const int first = std::max(0, static_cast<int>(std::ceil(centre - radius)));
        const int last = std::min(from - 1, static_cast<int>(std::floor(centre + radius)));
        Taps taps{first, {}};
        float sum = 0;
        for (int source = first; source <= last; ++source) {
            const float distance = std::abs(static_cast<float>(source) - centre);
            taps.weights.push_back(std::max(0.0F, 1 - distance / radius));
            sum += taps.weights.back();
        }
        for (float& weight : taps.weights) {
            weight /= sum;
        }
        all.push_back(std::move(taps));
    }
    return all;
}

/// Blends the pixels at position, position + stride ... as the taps say.
template <class PixelAt> Channels blend(const Taps& taps, const PixelAt& pixelAt)
{
    Channels sum{};
    int source = taps.first;
    for (const float weight : taps.weights) {
        const Channels pixel = pixelAt(source++);
        for (std::size_t c = 0; c < sum.size(); ++c) {
            sum[c] += weight * pixel[c];
        }
    }
    return sum;
}

Channels unpack(std::uint32_t pixel)
{
    Channels channels{};
    for (std::size_t c = 0; c < channels.size(); ++c) {
        channels[c] = static_cast<float>(pixel >> (8 * c) & 0xFFU);
    }
    return channels;
}

std::uint32_t pack(const Channels& channels)
{
    std::uint32_t pixel = 0;
    for (std::size_t c = 0; c < channels.size(); ++c) {
        const float rounded = std::clamp(channels[c] + 0.5F, 0.0F, 255.0F);
        pixel |= static_cast<std::uint32_t>(rounded) << (8 * c);
    }
    return pixel;
}

} // namespace

PixelImage scaled(const PixelImage& image, int width, int height)
{
    const auto columns = tapsFor(image.width, width);
    const auto rows = tapsFor(image.height, height);
    const auto at = [](int x, int y, int rowLength) {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(rowLength) +
               static_cast<std::size_t>(x);
    };
    std::vector<Channels> wide(at(0, image.height, width));
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < width; ++x) {
            wide[at(x, y, width)] = blend(columns[static_cast<std::size_t>(x)], [&](int source) {
                return unpack(image.pixels[at(source, y, image.width)]);
            });
        }
    }
    PixelImage result{width, height, std::vector<std::uint32_t>(at(0, height, width))};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            result.pixels[at(x, y, width)] =
                pack(blend(rows[static_cast<std::size_t>(y)],
                           [&](int source) { return wide[at(x, source, width)]; }));
        }
    }
    return result;
}

} // namespace o7
