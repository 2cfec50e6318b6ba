#pragma once

namespace o7::bench {

class Report;

/// One change in a model of 100 features and 300 constraints: what it evaluates and what it costs.
void MeasureConstraints(Report& report);

/// Telling observers of a change, against calling them directly.
void MeasureNotify(Report& report);

inline constexpr int kRuns = 11;

} // namespace o7::bench
