#include "privatepart.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

namespace o7 {
namespace {

using Part = std::array<std::uint8_t, kPrivatePartSize>;

std::vector<std::uint8_t> blockOf(std::size_t size)
{
    std::vector<std::uint8_t> block(size);
    std::iota(block.begin(), block.end(), std::uint8_t{1});
    return block;
}

TEST(PrivatePart, GivesBackWhatWasWrittenAndRefusesWhatDoesNotFit)
{
    Part part;
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, kPrivateBlockCapacity}) {
        part.fill(0xCD);
        EXPECT_TRUE(writePrivatePart(part, blockOf(size)));
        EXPECT_TRUE(std::ranges::equal(readPrivatePart(part), blockOf(size))) << size;
    }
    part.fill(0xCD);
    EXPECT_FALSE(writePrivatePart(part, blockOf(kPrivateBlockCapacity + 1)));
    Part empty;
    writePrivatePart(empty, {});
    EXPECT_EQ(part, empty);
}

TEST(PrivatePart, OfTheSizeOfEarlierVersionsIsRead)
{
    constexpr std::size_t kEarlierSize = 8192;
    Part part;
    writePrivatePart(part, blockOf(kEarlierSize - kPrivateHeaderSize));
    EXPECT_TRUE(std::ranges::equal(readPrivatePart(std::span(part).first(kEarlierSize)),
                                   blockOf(kEarlierSize - kPrivateHeaderSize)));
}

TEST(PrivatePart, StaysWithinASignedNumberOfSixteenBits)
{
    static_assert(kPrivateBlockCapacity == kSettingsBlockLimit);
    EXPECT_LT(kPrivatePartSize, 0x8000U - 220) << "with the public part before it";
}

TEST(PrivatePart, ReadsNothingOutOfDamagedParts)
{
    struct Row
    {
        const char* damage;
        std::size_t size; ///< of the part as it is handed in
        std::size_t at;   ///< byte that is changed
        std::uint8_t to;
    };
    // clang-format off
    constexpr Row rows[] = {
        {"no part at all",            0,                      0, 'O'},
        {"cut off in the header",     kPrivateHeaderSize - 1, 0, 'O'},
        {"another driver's",          kPrivatePartSize,       0, 'X'},
        {"a newer layout",            kPrivatePartSize,       4, 2},
        {"a header that is too short", kPrivatePartSize,       6, 15},
        {"a header beyond the end",   kPrivatePartSize,       7, 0xFF},
        {"a block beyond the end",    kPrivatePartSize,       9, 0x7C},
        {"a huge block",              kPrivatePartSize,      11, 0xFF},
        {"cut off in the block",      kPrivateHeaderSize + 99, 0, 'O'},
    };
    // clang-format on
    Part whole;
    writePrivatePart(whole, blockOf(100));
    ASSERT_EQ(readPrivatePart(whole).size(), 100U);
    for (const Row& row : rows) {
        Part part = whole;
        part[row.at] = row.to;
        EXPECT_TRUE(readPrivatePart(std::span(part).first(row.size)).empty()) << row.damage;
    }
}

} // namespace
} // namespace o7
