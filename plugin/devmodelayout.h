#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "cxstring.h"

namespace o7 {

/// How a DEVMODEW lies in memory: a public part that the system has laid out, and behind it the
/// driver's private part. Little-endian; offsets in bytes.
// clang-format off
inline constexpr std::size_t kSpecVersionAt   = 64;
inline constexpr std::size_t kDriverVersionAt = 66;
inline constexpr std::size_t kSizeAt          = 68;
inline constexpr std::size_t kExtraAt         = 70;
inline constexpr std::size_t kFieldsAt        = 72;
inline constexpr std::size_t kOrientationAt   = 76;
inline constexpr std::size_t kPaperSizeAt     = 78;
inline constexpr std::size_t kPaperLengthAt   = 80;
inline constexpr std::size_t kPaperWidthAt    = 82;
inline constexpr std::size_t kScaleAt         = 84;
inline constexpr std::size_t kCopiesAt        = 86;
inline constexpr std::size_t kSourceAt        = 88;
inline constexpr std::size_t kQualityAt       = 90;
inline constexpr std::size_t kColourAt        = 92;
inline constexpr std::size_t kDuplexAt        = 94;
inline constexpr std::size_t kYResolutionAt   = 96;
inline constexpr std::size_t kCollateAt       = 100;
inline constexpr std::size_t kFormNameAt      = 102;
inline constexpr std::size_t kMediaTypeAt     = 196;
inline constexpr std::size_t kPublicPartSize  = 220;
// clang-format on

/// Characters of the device's and of the form's name, the zero at the end included.
inline constexpr std::size_t kNameLength = 32;

/// The fields of the public part that stand for settings. A field whose bit is not in `fields` says
/// nothing.
struct PublicFields
{
    std::uint32_t fields = 0; ///< FieldBit
    int orientation = 0;
    int paperSize = 0;
    int paperLength = 0; ///< tenths of a millimetre, as the next one
    int paperWidth = 0;
    int scale = 0; ///< percent
    int copies = 0;
    int source = 0;
    int quality = 0; ///< dots per inch, or a negative grade
    int colour = 0;
    int duplex = 0;
    int yResolution = 0;
    int collate = 0;
    int mediaType = 0;
    CXString formName;

    bool has(std::uint32_t bits) const { return (fields & bits) == bits; }
};

/// What there is in a DEVMODE.
struct DevModeParts
{
    PublicFields fields;
    std::span<const std::uint8_t> privatePart; ///< borrowed
};

/// Takes a DEVMODE apart, whatever the system or driver that made it. Fields that its public part
/// is too short for count as not set; a private part that is cut off is handed out as far as it
/// goes. Nothing when the sizes that it states leave no room for the oldest fields, or lie beyond
/// `bytes`.
std::optional<DevModeParts> readDevMode(std::span<const std::uint8_t> bytes);

/// Writes every byte of the public part; texts that are too long are cut.
/// @param privateSize  what `dmDriverExtra` says.
void writePublicPart(std::span<std::uint8_t, kPublicPartSize> bytes, const CXString& deviceName,
                     const PublicFields& fields, std::size_t privateSize);

} // namespace o7
