#pragma once

/// How a condition is read.
struct ConditionOptions
{
    /// What the condition answers while its feature has no value (unspecified or cleared).
    bool holdsWithoutValue = false;
};
