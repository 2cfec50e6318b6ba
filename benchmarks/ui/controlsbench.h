#pragma once

#include <string>

namespace o7::bench {

class Report;

/// Creating each control of the module against creating the same window by plain calls, with font
/// and text; filling a combo box with 1,000 entries against the plain messages.
void benchControls(Report& report, const std::wstring& productFolder);

} // namespace o7::bench
