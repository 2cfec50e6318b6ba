#pragma once

#include <string>

namespace o7::bench {

class Report;

/// A message past 16 tabs of 50 molecules: one that nobody wants, and one that all decline.
void benchRouting(Report& report, const std::wstring& productFolder);

} // namespace o7::bench
