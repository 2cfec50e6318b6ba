#pragma once

#include <cstdint>

/// Button actions that the user interface carries out itself; all others belong to the data model.
namespace o7 {

/// Gives every setting of the page that is shown its default value.
inline constexpr std::uint32_t kActionPageDefaults = 1000;

} // namespace o7
