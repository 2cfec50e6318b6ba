#pragma once

#include <cstdint>

/// A popup dialog that the description may hold. The enumeration is open: any number is a valid
/// request, and one that the description does not hold is answered with "no such dialog".
enum class DialogId : std::uint32_t
{
    JobTrackingOff = 45, ///< Says that job tracking is off; can be told not to appear again.
    QuickSettings = 103, ///< The settings people change per job; the whole UI in mode 3.
};
