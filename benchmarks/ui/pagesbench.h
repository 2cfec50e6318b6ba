#pragma once

#include <string>

namespace o7::bench {

class Report;

/// Pages of 5 to 200 controls in sheets of 1 to 16 pages, each against a bare sheet with the same
/// windows: opening, page switches, closing, and what a further control costs.
void benchPages(Report& report, const std::wstring& productFolder);

/// One click that greys out twenty molecules: the time until that is painted, and who paints.
void benchGreying(Report& report, const std::wstring& productFolder);

} // namespace o7::bench
