#pragma once

#include <cstdint>

namespace o7 {

/// The numbers by which the system and the applications name the fields of a DEVMODE and the
/// questions of `DeviceCapabilities`. They are repeated here (and held against the system's headers
/// in systemnumbers.cpp) so that what reads a DEVMODE can be tested where there is no Windows.

// clang-format off
/// Bits of `dmFields`.
enum FieldBit : std::uint32_t
{
    kOrientationField  = 0x00000001,
    kPaperSizeField    = 0x00000002,
    kPaperLengthField  = 0x00000004,
    kPaperWidthField   = 0x00000008,
    kScaleField        = 0x00000010,
    kCopiesField       = 0x00000100,
    kSourceField       = 0x00000200,
    kQualityField      = 0x00000400,
    kColourField       = 0x00000800,
    kDuplexField       = 0x00001000,
    kYResolutionField  = 0x00002000,
    kCollateField      = 0x00008000,
    kFormNameField     = 0x00010000,
    kMediaTypeField    = 0x02000000,
};

/// Numbers inside the fields that are not in a table of their own (documentvalues.cpp).
enum FieldNumber : int
{
    kDuplexLongEdge    = 2,
    kColourPrinting    = 2,
    kLandscape         = 2,
    kFirstOwnPaper     = 256, ///< papers, bins and media of the driver's own begin here
};

/// Questions of `DeviceCapabilities`.
enum Capability : std::uint16_t
{
    kCapFields         = 1,
    kCapPapers         = 2,
    kCapPaperSize      = 3,
    kCapMinExtent      = 4,
    kCapMaxExtent      = 5,
    kCapBins           = 6,
    kCapDuplex         = 7,
    kCapSize           = 8,
    kCapExtra          = 9,
    kCapVersion        = 10,
    kCapDriver         = 11,
    kCapBinNames       = 12,
    kCapResolutions    = 13,
    kCapPaperNames     = 16,
    kCapOrientation    = 17,
    kCapCopies         = 18,
    kCapCollate        = 22,
    kCapPrintRate      = 26,
    kCapPrintRateUnit  = 27,
    kCapPrinterMemory  = 28,
    kCapMediaReady     = 29,
    kCapStaple         = 30,
    kCapPrintRatePpm   = 31,
    kCapColourDevice   = 32,
    kCapPagesPerSheet  = 33,
    kCapMediaTypeNames = 34,
    kCapMediaTypes     = 35,
};
// clang-format on

inline constexpr std::uint16_t kDevModeVersion = 0x0401; ///< of the public part's layout
inline constexpr std::uint16_t kDriverVersion = 0x0100;  ///< of this driver's DEVMODE
inline constexpr std::uint32_t kPagesPerMinuteUnit = 1;  ///< answer to kCapPrintRateUnit

} // namespace o7
