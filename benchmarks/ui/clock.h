#pragma once

namespace o7::bench {

/// The system's finest clock, counted from some moment in the past.
double microsecondsNow();
double millisecondsNow();

} // namespace o7::bench
