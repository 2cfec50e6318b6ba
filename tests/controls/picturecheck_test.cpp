#include "picturecheck.h"

#include <gtest/gtest.h>

#include <string>

namespace {

bool accepts(const std::string& data)
{
    return o7::isDecodablePicture(
        {reinterpret_cast<const std::uint8_t*>(data.data()), data.size()});
}

std::string word(unsigned value)
{
    return {static_cast<char>(value & 0xFFU), static_cast<char>(value >> 8U & 0xFFU)};
}
std::string bigWord(unsigned value)
{
    const std::string little = word(value);
    return {little[1], little[0]};
}

std::string gifHeader(unsigned width, unsigned height, bool colours)
{
    const std::string packed(1, colours ? '\x80' : '\0');
    return "GIF89a" + word(width) + word(height) + packed + std::string(2, '\0') +
           std::string(colours ? 6 : 0, 'c');
}
std::string gifImage(unsigned width, bool colours)
{
    return "," + std::string(4, '\0') + word(width) + word(2) +
           std::string(1, colours ? '\x80' : '\0') + std::string(colours ? 6 : 0, 'c') +
           "\x02\x01z" + std::string(1, '\0');
}
std::string jpeg(const std::string& before, char marker, unsigned width)
{
    return "\xFF\xD8" + before + "\xFF" + std::string(1, marker) + bigWord(11) + "\x08" +
           bigWord(3) + bigWord(width) + std::string(4, '\x01');
}
std::string bitmap(unsigned headerSize, const std::string& sizes)
{
    return "BM" + std::string(12, '\0') + word(headerSize) + word(0) + sizes +
           std::string(12, '\0');
}

const std::string kTable = "\xFF\xC4" + std::string("\0\4ab", 4);
const std::string kExtension = std::string("!\xF9\4abcd\0", 8);

struct Sample
{
    const char* what;
    std::string data;
    bool accepted;
};

const Sample kSamples[] = {
    {"GIF, shared colours", gifHeader(2, 2, true) + gifImage(2, false) + ";", true},
    {"GIF, own colours", gifHeader(2, 2, false) + kExtension + gifImage(2, true) + ";", true},
    {"GIF without colours", gifHeader(2, 2, false) + gifImage(2, false) + ";", false},
    {"GIF, second image without", gifHeader(2, 2, false) + gifImage(2, true) + gifImage(2, false),
     false},
    {"GIF of no size", gifHeader(0, 2, true) + gifImage(2, false), false},
    {"GIF too large", gifHeader(65535, 65535, true) + gifImage(2, false), false},
    {"GIF, image too large", gifHeader(2, 2, true) + gifImage(65535, false), false},
    {"GIF without an image", gifHeader(2, 2, true) + kExtension + ";", false},
    {"GIF, header cut", "GIF89a", false},
    {"JPEG", jpeg("", '\xC0', 4), true},
    {"JPEG, progressive, tables first", jpeg(kTable + "\xFF", '\xC2', 4), true},
    {"JPEG too large", jpeg("", '\xC0', 65535), false},
    {"JPEG without a frame", "\xFF\xD8" + kTable, false},
    {"bitmap", bitmap(40, word(9) + word(0) + word(9) + word(0)), true},
    {"bitmap, top down", bitmap(40, word(9) + word(0) + "\xF7\xFF\xFF\xFF"), true},
    {"bitmap, too wide", bitmap(40, word(9) + word(9) + word(9) + word(0)), false},
    {"bitmap, old form", bitmap(12, word(9) + word(9)), true},
    {"bitmap, cut", "BM", false},
    {"icon", std::string("\0\0\1\0\1\0", 6), true},
    {"metafile", "\xD7\xCD\xC6\x9A", true},
    {"enhanced metafile", std::string(40, '\1') + " EMF", true},
    {"text", "picture", false},
    {"nothing", "", false},
};

TEST(PictureCheck, LetsThroughWhatADecoderCanTake)
{
    for (const Sample& sample : kSamples) {
        EXPECT_EQ(sample.accepted, accepts(sample.data)) << sample.what;
        // Cut anywhere it is read no further than it goes.
        for (std::size_t length = 0; length < sample.data.size(); ++length) {
            accepts(sample.data.substr(0, length));
        }
    }
}

} // namespace
