#pragma once

#include <string_view>

namespace o7 {

/// Writes a text, ended by a line break, to the standard error stream: to a console as it is, to a
/// file or pipe as UTF-8. A program started without such a stream loses it silently.
void printError(std::wstring_view text);
/// The same to the standard output stream.
void print(std::wstring_view text);

} // namespace o7
