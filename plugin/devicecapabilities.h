#pragma once

#include <cstdint>

class IDataModel;

namespace o7 {

/// What `DeviceCapabilities` gives for a question that the driver leaves to the system.
inline constexpr std::uint32_t kNotAnswered = 0xFFFFFFFF;

/// Answers one question of `DeviceCapabilities` for a product, from what its package says and what
/// is installed in the device: what needs a unit that is not there is not to be had.
/// @param output  null: only the count is wanted; else room for as many entries as were counted:
///                16-bit numbers for papers and bins, 32-bit ones for the rest, pairs of 32-bit
///                ones for paper sizes and resolutions, 64 UTF-16 units for each name (24 for
///                bins). Names are cut to fit, and always end with a zero.
/// @return the number of entries, or the answer itself for questions with a number for an answer.
std::uint32_t deviceCapability(IDataModel& model, std::uint16_t capability, void* output);

} // namespace o7
