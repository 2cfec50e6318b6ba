#include "scrambling.h"

#include "crc32.h"

namespace o7 {
namespace {

constexpr std::uint64_t kKey = 0x8E4D37C19B60A52FULL;
constexpr std::size_t kSeedSize = 4;
constexpr std::size_t kLengthSize = 2;
constexpr std::size_t kStep = 16;
constexpr std::size_t kLongest = 0xFFFF;

/// A row of bytes that looks like chance, from the key and a seed (SplitMix64).
class KeyStream
{
public:
    explicit KeyStream(std::uint32_t seed) : m_state(kKey ^ (std::uint64_t{seed} << 17U)) {}

    std::uint8_t Next()
    {
        m_state += 0x9E3779B97F4A7C15ULL;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9ULL;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBULL;
        return static_cast<std::uint8_t>(mixed >> 56U);
    }

private:
    std::uint64_t m_state;
};

/// The seed is also what tells whether the bytes are sound.
std::uint32_t SeedOf(const std::vector<std::uint8_t>& padded)
{
    std::vector<std::uint8_t> text;
    for (unsigned shift = 0; shift < 64; shift += 8)
        text.push_back(static_cast<std::uint8_t>(kKey >> shift));
    text.insert(text.end(), padded.begin(), padded.end());
    return Crc32(text.data(), text.size());
}

std::size_t PaddedSize(std::size_t plainSize)
{
    return (plainSize + kLengthSize + kStep - 1) / kStep * kStep;
}

} // namespace

std::size_t ScrambledSize(std::size_t plainSize)
{
    return kSeedSize + PaddedSize(plainSize);
}

std::vector<std::uint8_t> Scramble(const std::vector<std::uint8_t>& plain)
{
    if (plain.size() > kLongest)
        return {};
    std::vector<std::uint8_t> padded;
    padded.reserve(PaddedSize(plain.size()));
    padded.push_back(static_cast<std::uint8_t>(plain.size()));
    padded.push_back(static_cast<std::uint8_t>(plain.size() >> 8U));
    padded.insert(padded.end(), plain.begin(), plain.end());
    padded.resize(PaddedSize(plain.size()));
    const std::uint32_t seed = SeedOf(padded);
    std::vector<std::uint8_t> scrambled;
    scrambled.reserve(kSeedSize + padded.size());
    for (unsigned shift = 0; shift < 32; shift += 8)
        scrambled.push_back(static_cast<std::uint8_t>(seed >> shift));
    KeyStream stream(seed);
    for (const std::uint8_t byte : padded)
        scrambled.push_back(static_cast<std::uint8_t>(byte ^ stream.Next()));
    return scrambled;
}

bool Unscramble(const std::uint8_t* bytes, std::size_t size, std::vector<std::uint8_t>& plain)
{
    if (size < kSeedSize + kStep)
        return false;
    std::uint32_t seed = 0;
    for (std::size_t i = 0; i < kSeedSize; ++i)
        seed |= std::uint32_t{bytes[i]} << (8 * i);
    KeyStream stream(seed);
    std::vector<std::uint8_t> padded;
    padded.reserve(size - kSeedSize);
    for (std::size_t i = kSeedSize; i < size; ++i)
        padded.push_back(static_cast<std::uint8_t>(bytes[i] ^ stream.Next()));
    const std::size_t length = padded[0] | std::size_t{padded[1]} << 8U;
    if (SeedOf(padded) != seed || length > padded.size() - kLengthSize)
        return false;
    const auto begin = padded.begin() + static_cast<std::ptrdiff_t>(kLengthSize);
    plain.assign(begin, begin + static_cast<std::ptrdiff_t>(length));
    return true;
}

} // namespace o7
