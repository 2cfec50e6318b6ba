#pragma once
// The driver's diagnostic output.

#include "cxstring.h"
#include "utilapi.h"

namespace o7 {

/// Writes one line to the debugger (OutputDebugStringW), and to the standard error stream when the
/// environment variable O7_TRACE is set. Never fails and keeps the thread's last error.
O7UTIL_API void trace(const CXString& line) noexcept;

} // namespace o7
