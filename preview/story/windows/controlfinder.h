#pragma once

#include <initializer_list>

#include "controlname.h"
#include "frontwindow.h"
#include "pagecontrols.h"

namespace o7::story {

/// Finds the control that a story means, on the page in front. It has to be one of the kinds.
/// @param hiddenToo  also one that is not to be seen
/// @throws StepFailure when there is none, saying what there is, or more than one, naming the
///         groups.
PageControl findControl(const FrontWindow& window, const ControlName& name,
                        std::initializer_list<ControlKind> kinds, bool hiddenToo = false);

} // namespace o7::story
