#pragma once

#include <string>
#include <string_view>

namespace o7 {

std::wstring wideFromUtf8(std::string_view text);
std::string utf8FromWide(std::wstring_view text);

/// Writes one sentence and a line break to the standard error stream: to a console as it is, to a
/// file or pipe as UTF-8. A program started without any of them loses the text silently.
void printError(std::wstring_view text);
/// The same to the standard output stream.
void print(std::wstring_view text);

} // namespace o7
