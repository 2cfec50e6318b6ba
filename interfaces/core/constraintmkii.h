#pragma once

#include "condition.h"
#include "constraintmkiioptions.h"

/// When the first condition holds, the second must not: the values that would fulfil the second are
/// disabled, and a value that fulfils it already is reported as a conflict. A second condition that
/// excludes nothing (kExclude with an empty set) means the feature as a whole.
class ConstraintMkII
{
public:
    ConstraintMkII(const Condition& when, const Condition& mustNotHold,
                   const ConstraintMkIIOptions& options = {})
        : m_when(when), m_mustNotHold(mustNotHold), m_options(options)
    {
    }

    const Condition& GetWhen() const { return m_when; }
    const Condition& GetMustNotHold() const { return m_mustNotHold; }
    const ConstraintMkIIOptions& GetOptions() const { return m_options; }

private:
    Condition m_when;
    Condition m_mustNotHold;
    ConstraintMkIIOptions m_options;
};
