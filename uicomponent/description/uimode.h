#pragma once

#include <cstdint>

/// Which user interface the caller wants. Together with the device family (feature 285) it selects
/// the root record of the description.
enum class UIMode : std::uint32_t
{
    PrintingPreferences = 1, ///< The pages of one person's printing preferences.
    DeviceSettings = 2,      ///< What is installed in the device and how it is connected.
    CompactDialog = 3,       ///< One dialog with the settings people change per job; no pages.
    PrintingDefaults = 4,    ///< The administrator's defaults for everybody who prints.
};

/// The third number that a description is built from. It travels with the description; every
/// product so far is described the same way under any workflow.
enum class Workflow : std::uint32_t
{
    Standard = 0,
};
