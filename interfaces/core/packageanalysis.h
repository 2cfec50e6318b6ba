// What is wrong with a product package that loads: rules that cannot be meant. For checking a
// package while it is written; a driver never needs it.
#pragma once

#include "coreapi.h"

#include <string>
#include <vector>

namespace o7 {

class ProductPackage;

enum class PackageFindingKind
{
    /// Whatever else is chosen, a constraint forbids the option.
    UnreachableOption,
    /// One choice leaves another feature without a single value.
    Contradiction,
    /// Constraints that disable each other's causes as a whole: once both hold, neither feature can
    /// be changed any more. (Circles of clearing constraints and adapting defaults do not load.)
    Circle,
    /// No values fulfil all conditions of a constraint, or of a row of adapting defaults.
    NeverHolds,
    /// Two constraints say the same.
    Duplicate,
    /// The defaults break a constraint.
    DefaultConflict,
    /// A single change from the defaults puts a setting in conflict that nobody has touched.
    UntouchedConflict,
};

/// "unreachable option" and so on, for messages.
O7CORE_API const char* NameOf(PackageFindingKind kind);

struct PackageFinding
{
    PackageFindingKind kind = PackageFindingKind::UnreachableOption;
    unsigned line = 0;   ///< In package.json, counted from 1: of the constraint or the feature.
    std::string message; ///< Names features, values and constraints; English, UTF-8.
};

/// Every such mistake, in the order of their lines; the same for the same package however it was
/// loaded. The search is bounded: what it cannot decide within its bounds it does not report.
O7CORE_API std::vector<PackageFinding> AnalyseProductPackage(const ProductPackage& package);

} // namespace o7
