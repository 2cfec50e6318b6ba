#pragma once

#include <cstdint>

namespace o7 {

/// What an active constraint does to a feature, or to some of its values.
enum class EffectKind : std::uint8_t
{
    Disable,
    Clear, ///< Disabled, shown and read as having no value.
    Hide,
    Info,
    Conflict,
    Force, ///< The feature has another value than its own: shown, read and printed, not changeable.
    Require, ///< The feature needs a value.
};

} // namespace o7
