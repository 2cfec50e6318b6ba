#pragma once
// How a numbered text is read from a module's string resources.

#include "cxstring.h"

struct HINSTANCE__;

namespace o7 {

/// "#" and the number when the module has no such text.
CXString loadResourceString(HINSTANCE__* module, unsigned id);
/// What stands for a text that is missing.
CXString missingStringText(unsigned id);

} // namespace o7
