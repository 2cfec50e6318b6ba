#pragma once

#include <vector>

#include "frontwindow.h"
#include "pagecontrols.h"
#include "uidumptext.h"

namespace o7::story {

/// What the user interface says of a control of the window in front: its line, then those of its
/// entries, if it has any.
/// @throws StepFailure when what it says does not go with what is to be seen.
std::vector<DumpLine> dumpLinesOf(const DumpText& dump, const FrontWindow& window,
                                  const PageControl& control);

/// The lines of the page in front.
std::span<const DumpLine> dumpOfPage(const DumpText& dump, const FrontWindow& window);

} // namespace o7::story
