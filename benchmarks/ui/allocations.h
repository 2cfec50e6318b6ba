#pragma once

namespace o7::bench {

/// How often this program has called operator new so far.
unsigned long long allocationCount();

} // namespace o7::bench
