#include "bytebuffer.h"
#include "cxstringprinter.h"

#include <gtest/gtest.h>

namespace {

TEST(ByteBuffer, StreamFormIsCountThenUtf16OneBehindTheOther)
{
    ByteBuffer stream;
    ByteBuffer(CXString(L"A\u20AC")).persistToByteStream(stream);
    const std::uint8_t expected[] = {4, 0, 0, 0, 'A', 0, 0xAC, 0x20};
    EXPECT_EQ(stream, ByteBuffer(expected, sizeof expected));
    ByteBuffer().persistToByteStream(stream);
    ByteBuffer entry;
    std::size_t position = 0;
    ASSERT_TRUE(entry.initializeFromByteStream(stream, position));
    EXPECT_EQ(entry.getAsStringValue(), L"A\u20AC");
    ASSERT_TRUE(entry.initializeFromByteStream(stream, position));
    EXPECT_TRUE(entry.empty());
    EXPECT_EQ(position, stream.size());
    EXPECT_FALSE(entry.initializeFromByteStream(stream, position));
}

TEST(ByteBuffer, EveryCutOfAStreamIsRefusedAndChangesNothing)
{
    ByteBuffer stream;
    ByteBuffer(CXString(L"tray")).persistToByteStream(stream);
    for (std::size_t length = 0; length < stream.size(); ++length) {
        const ByteBuffer cut(stream.data(), length);
        ByteBuffer entry(CXString(L"kept"));
        std::size_t position = 0;
        EXPECT_FALSE(entry.initializeFromByteStream(cut, position)) << length;
        EXPECT_EQ(entry.getAsStringValue(), L"kept");
        EXPECT_EQ(position, 0U);
    }
    const std::uint8_t boast[] = {0xFF, 0xFF, 0xFF, 0xFF, 'A', 0};
    ByteBuffer entry;
    std::size_t position = 0;
    EXPECT_FALSE(entry.initializeFromByteStream(ByteBuffer(boast, sizeof boast), position));
    position = 99;
    EXPECT_FALSE(entry.initializeFromByteStream(stream, position));
    EXPECT_EQ(position, 99U);
}

TEST(ByteBuffer, MayBeItsOwnSourceAndTarget)
{
    ByteBuffer buffer(CXString(L"ab"));
    buffer.appendLpbyte(buffer.data(), 2);
    EXPECT_EQ(buffer.getAsStringValue(), L"aba");
    buffer.persistToByteStream(buffer);
    EXPECT_EQ(buffer.size(), 6U + 4U + 6U);
    std::size_t position = 6;
    EXPECT_TRUE(buffer.initializeFromByteStream(buffer, position));
    EXPECT_EQ(buffer.getAsStringValue(), L"aba");
}

TEST(ByteBuffer, TextEndsAtAZeroOrAnOddByte)
{
    const std::uint8_t bytes[] = {'a', 0, 'b', 0, 0, 0, 'c', 0};
    EXPECT_EQ(ByteBuffer(bytes, 8).getAsStringValue(), L"ab");
    EXPECT_EQ(ByteBuffer(bytes, 3).getAsStringValue(), L"a");
    EXPECT_EQ(ByteBuffer(nullptr, 8).getAsStringValue(), L"");
}

} // namespace
