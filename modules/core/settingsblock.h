// Settings as a compact block of bytes, made to travel inside a DEVMODE. All numbers little-endian:
//
//   0  4 bytes  "O7SB"
//   4  u16      version, 1
//   6  u16      reserved, 0
//   8  u32      CRC-32 of the product's unique id (UTF-8)
//  12  u32      number of payload bytes
//  16  u32      CRC-32 of the payload
//  20  payload  the members of the full list that differ from their defaults
//
// Bytes behind the payload are not looked at: the place for a block has a fixed size.
#pragma once

#include "settingssnapshot.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace o7 {

std::vector<std::uint8_t> EncodeSettings(const ProductDescription& product,
                                         const SettingsSnapshot& settings);

/// Puts what the block says over `settings`, which the caller fills with the defaults. False, with
/// `settings` in no particular state, for a block that is damaged or belongs to another product.
bool DecodeSettings(const ProductDescription& product, const std::uint8_t* bytes, std::size_t size,
                    SettingsSnapshot& settings);

} // namespace o7
