#pragma once

namespace o7::bench {

class Report;

/// Changes in models of up to 1,000 features and 20,000 constraints: what one evaluates and costs,
/// what settling its conflicts and taking it back costs.
void MeasureConstraints(Report& report);

/// Telling observers of a change, against calling them directly.
void MeasureNotify(Report& report);

/// Loading the largest package, and what a model takes.
void MeasurePackage(Report& report);

inline constexpr int kRuns = 11;

} // namespace o7::bench
