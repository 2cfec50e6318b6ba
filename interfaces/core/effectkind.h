#pragma once

namespace o7 {

/// What an active constraint does to a feature, or to some of its values.
enum class EffectKind
{
    Disable,
    Clear, ///< Disabled, shown and read as having no value.
    Hide,
    Info,
    Conflict,
};

} // namespace o7
