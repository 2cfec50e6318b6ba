#pragma once

#include "effectkind.h"

/// What accompanies a constraint that is added at run time.
struct ConstraintMkIIOptions
{
    /// Number of the string that explains the constraint, with {0} for the cause and {1} for what
    /// is limited (see docs); 60298 is the general "cannot be combined" text.
    unsigned reasonStringNumber = 60298;

    /// What becomes of the values that must not be chosen. Whatever it is (but for information),
    /// one that is chosen already is reported as a conflict.
    o7::EffectKind effect = o7::EffectKind::Disable;
};
