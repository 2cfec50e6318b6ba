#pragma once
// The error message box of last resort.

#include "cxstring.h"

namespace o7 {

/// Modal to the thread's active window (MessageBoxW); on the host, a line on the error stream.
void showErrorBox(const CXString& title, const CXString& text);

} // namespace o7
