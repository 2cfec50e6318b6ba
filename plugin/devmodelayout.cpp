#include "devmodelayout.h"

#include <algorithm>
#include <limits>

#include "systemnumbers.h"

namespace o7 {
namespace {

/// A public part that ends before this has none of the fields that every driver knows.
constexpr std::size_t kSmallestPublicPart = kFormNameAt;

struct NumberRow
{
    std::size_t at;
    int PublicFields::*number;
};

// clang-format off
constexpr NumberRow kShorts[] = {
    {kOrientationAt, &PublicFields::orientation},
    {kPaperSizeAt,   &PublicFields::paperSize},
    {kPaperLengthAt, &PublicFields::paperLength},
    {kPaperWidthAt,  &PublicFields::paperWidth},
    {kScaleAt,       &PublicFields::scale},
    {kCopiesAt,      &PublicFields::copies},
    {kSourceAt,      &PublicFields::source},
    {kQualityAt,     &PublicFields::quality},
    {kColourAt,      &PublicFields::colour},
    {kDuplexAt,      &PublicFields::duplex},
    {kYResolutionAt, &PublicFields::yResolution},
    {kCollateAt,     &PublicFields::collate},
};
// clang-format on

std::uint16_t getWord(std::span<const std::uint8_t> bytes, std::size_t at)
{
    return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8);
}

std::uint32_t getDword(std::span<const std::uint8_t> bytes, std::size_t at)
{
    return getWord(bytes, at) | static_cast<std::uint32_t>(getWord(bytes, at + 2)) << 16;
}

void putWord(std::span<std::uint8_t> bytes, std::size_t at, std::uint32_t number)
{
    bytes[at] = static_cast<std::uint8_t>(number);
    bytes[at + 1] = static_cast<std::uint8_t>(number >> 8);
}

void putDword(std::span<std::uint8_t> bytes, std::size_t at, std::uint32_t number)
{
    putWord(bytes, at, number);
    putWord(bytes, at + 2, number >> 16);
}

/// A text of fixed length that may or may not be ended by a zero.
CXString getName(std::span<const std::uint8_t> bytes, std::size_t at)
{
    std::size_t length = 0;
    while (length < kNameLength && getWord(bytes, at + 2 * length) != 0) {
        ++length;
    }
    return CXString::FromUtf16Le(bytes.data() + at, 2 * length);
}

void putName(std::span<std::uint8_t> bytes, std::size_t at, const CXString& name)
{
    const auto text = name.ToUtf16Le();
    std::size_t size = std::min(text.size(), 2 * (kNameLength - 1));
    // Half a character says nothing.
    if (size < text.size() && size >= 2 && (text[size - 1] & 0xFC) == 0xD8) {
        size -= 2;
    }
    std::copy_n(text.begin(), size, bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

} // namespace

std::optional<DevModeParts> readDevMode(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() < kSmallestPublicPart) {
        return std::nullopt;
    }
    const std::size_t publicSize = getWord(bytes, kSizeAt);
    if (publicSize < kSmallestPublicPart || publicSize > bytes.size()) {
        return std::nullopt;
    }
    DevModeParts parts;
    const std::size_t privateSize =
        std::min<std::size_t>(getWord(bytes, kExtraAt), bytes.size() - publicSize);
    parts.privatePart = bytes.subspan(publicSize, privateSize);

    PublicFields& fields = parts.fields;
    fields.fields = getDword(bytes, kFieldsAt);
    for (const NumberRow& row : kShorts) {
        fields.*row.number = static_cast<std::int16_t>(getWord(bytes, row.at));
    }
    if (publicSize >= kFormNameAt + 2 * kNameLength) {
        fields.formName = getName(bytes, kFormNameAt);
    } else {
        fields.fields &= ~std::uint32_t{kFormNameField};
    }
    const std::uint32_t media =
        publicSize >= kMediaTypeAt + 4 ? getDword(bytes, kMediaTypeAt) : 0xFFFFFFFF;
    if (media <= static_cast<std::uint32_t>(std::numeric_limits<int>::max())) {
        fields.mediaType = static_cast<int>(media);
    } else {
        fields.fields &= ~std::uint32_t{kMediaTypeField};
    }
    return parts;
}

void writePublicPart(std::span<std::uint8_t, kPublicPartSize> bytes, const CXString& deviceName,
                     const PublicFields& fields, std::size_t privateSize)
{
    std::ranges::fill(bytes, std::uint8_t{0});
    putName(bytes, 0, deviceName);
    putWord(bytes, kSpecVersionAt, kDevModeVersion);
    putWord(bytes, kDriverVersionAt, kDriverVersion);
    putWord(bytes, kSizeAt, kPublicPartSize);
    putWord(bytes, kExtraAt, static_cast<std::uint32_t>(privateSize));
    putDword(bytes, kFieldsAt, fields.fields);
    for (const NumberRow& row : kShorts) {
        putWord(bytes, row.at, static_cast<std::uint32_t>(fields.*row.number));
    }
    putName(bytes, kFormNameAt, fields.formName);
    putDword(bytes, kMediaTypeAt, static_cast<std::uint32_t>(fields.mediaType));
}

} // namespace o7
