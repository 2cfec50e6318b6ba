#include "uimessagemask.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t kUser = 0x400;

TEST(UIMessageMask, SystemMessagesAreExact)
{
    for (std::uint32_t wanted = 0; wanted < kUser; ++wanted) {
        UIMessageMask mask;
        mask.add(wanted);
        for (std::uint32_t message = 0; message < kUser; ++message) {
            ASSERT_EQ(message == wanted, mask.wants(message)) << wanted << ' ' << message;
        }
    }
}

TEST(UIMessageMask, NeverMissesAPrivateMessageNorLetsItWantSystemOnes)
{
    for (const std::uint32_t wanted : {0x400U, 0x4FFU, 0x7E8U, 0x8007U, 0xC123U, 0xFFFFU}) {
        UIMessageMask mask;
        mask.add(wanted);
        EXPECT_TRUE(mask.wants(wanted)) << wanted;
        for (std::uint32_t message = 0; message < kUser; ++message) {
            ASSERT_FALSE(mask.wants(message)) << wanted << ' ' << message;
        }
    }
}

TEST(UIMessageMask, UnionAllAndClear)
{
    UIMessageMask left;
    left.add(0x111);
    UIMessageMask right;
    right.add(0x4E);
    right.add(0x8007);
    left |= right;
    EXPECT_TRUE(left.wants(0x111) && left.wants(0x4E) && left.wants(0x8007));
    EXPECT_FALSE(left.wants(0x110));
    EXPECT_FALSE(right.wants(0x111));
    left.clear();
    EXPECT_FALSE(left.wants(0x111));
    left.addAll();
    EXPECT_TRUE(left.wants(0) && left.wants(0x3FF) && left.wants(0xFFFF));
}

} // namespace
