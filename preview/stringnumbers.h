#pragma once

#include <string_view>

namespace o7 {

/// The header in which the texts of the pages have their numbers, as this program was built with
/// it.
std::string_view stringNumberDefinitions();

} // namespace o7
