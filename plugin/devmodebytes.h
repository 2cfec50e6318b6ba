#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "documentsettings.h"

namespace o7 {

/// A DEVMODE of the system's as bytes: as many as it says it has.
inline std::span<const std::uint8_t> bytesOf(const DEVMODEW& devMode)
{
    return {reinterpret_cast<const std::uint8_t*>(&devMode),
            std::size_t{devMode.dmSize} + devMode.dmDriverExtra};
}

/// A buffer with room for one of ours, as whoever asked for it was told.
inline std::span<std::uint8_t, kDevModeSize> bufferOf(DEVMODEW& devMode)
{
    return std::span<std::uint8_t, kDevModeSize>(reinterpret_cast<std::uint8_t*>(&devMode),
                                                 kDevModeSize);
}

} // namespace o7
