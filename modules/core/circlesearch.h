#pragma once

#include "description.h"

#include <string>

namespace o7 {

/// A circle in which constraints of this list clear each other's causes, or defaults follow each
/// other ("a -> b -> a"), or nothing. Only clearing and adapting change what others read, so only
/// they can go round.
std::string FindConstraintCircle(const ListDescription& list);

} // namespace o7
