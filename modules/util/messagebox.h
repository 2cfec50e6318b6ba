#pragma once
// The error message box of last resort.

namespace o7 {

/// Modal to the thread's active window (MessageBoxW), and takes no memory of this module; on the
/// host, a line on the error stream.
void showErrorBox(const wchar_t* title, const wchar_t* text);

} // namespace o7
