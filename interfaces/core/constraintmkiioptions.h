#pragma once

/// What accompanies a constraint that is added at run time.
struct ConstraintMkIIOptions
{
    /// Number of the string that explains the constraint, with {0} for the cause and {1} for what
    /// is limited (see docs); 60000 is the general "cannot be combined" text.
    unsigned reasonStringNumber = 60000;
};
