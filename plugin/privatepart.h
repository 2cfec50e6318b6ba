#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "idatamodel.h"

namespace o7 {

/// The private part of the plug-in's DEVMODE: a block of exported settings behind a small header,
/// always of the same size. Little-endian:
///
///     0  4  signature "O7DM"
///     4  2  version of this layout
///     6  2  size of this header; a later one may only be longer
///     8  4  size of the block
///    12  4  0
///    16     the block (which carries its own version and checksum), then zeros
///
/// A DEVMODE is kept by applications in documents and by the system in the registry, so a part may
/// be old, cut off, of another driver, or garbage.
/// Parts of any size are read, such as the 8192 bytes of earlier versions.
inline constexpr std::size_t kPrivateHeaderSize = 16;
inline constexpr std::size_t kPrivateBlockCapacity = kSettingsBlockLimit;
inline constexpr std::size_t kPrivatePartSize = kPrivateHeaderSize + kPrivateBlockCapacity;

/// Fills the whole part, every byte of it.
/// @return false, with a valid part that holds no block, when the block does not fit.
bool writePrivatePart(std::span<std::uint8_t, kPrivatePartSize> part,
                      std::span<const std::uint8_t> block);

/// The block inside a part, borrowed; empty when the part is not ours, damaged, of an unknown
/// version, or holds none.
std::span<const std::uint8_t> readPrivatePart(std::span<const std::uint8_t> part);

} // namespace o7
