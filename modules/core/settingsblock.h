// Settings as a compact block of bytes, made to travel inside a DEVMODE. All numbers little-endian:
//
//   0  4 bytes  "O7SB"
//   4  u16      version, 2
//   6  u16      reserved, 0
//   8  u32      CRC-32 of the product's unique id (UTF-8)
//  12  u32      number of payload bytes
//  16  u32      CRC-32 of the payload
//  20  payload  version of the package that wrote it (not in version 1), then the members of the
//               full list that differ from their defaults
//
// Bytes behind the payload are not looked at: the place for a block has a fixed size. Version 1 is
// read as well; its entries do not say of what kind they are.
#pragma once

#include "idatamodel.h"
#include "settingssnapshot.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace o7 {

std::vector<std::uint8_t> EncodeSettings(const ProductDescription& product,
                                         const SettingsSnapshot& settings, SettingsScope scope);

/// Puts what the block says of the scope over `settings`, which the caller fills with the defaults.
/// What does not fit the product is passed over. False, with `settings` in no particular state, for
/// a block that is damaged or belongs to another product.
bool DecodeSettings(const ProductDescription& product, const std::uint8_t* bytes, std::size_t size,
                    SettingsScope scope, SettingsSnapshot& settings);

/// The size that the largest block of these settings can come to while no item is added and no text
/// changed, whatever else is chosen.
std::size_t LongestBlock(const ProductDescription& product, const SettingsSnapshot& settings);

/// The share of one feature, or of one item of a list, in that.
std::size_t LongestEntry(const FeatureDescription& description, const SettingsSnapshot& settings);

} // namespace o7
