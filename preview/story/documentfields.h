#pragma once

#include <span>
#include <string>
#include <string_view>

#include "devmodelayout.h"

namespace o7::story {

/// The public fields of a DEVMODE under the names and in the words of stories:
///
///     paper        A4, Letter and so on, custom, or the system's number
///     width length millimetres, such as 210 or 215.9
///     orientation  portrait, landscape
///     duplex       none, long, short
///     copies       a number
///     collate      on, off
///     colour       colour, mono
///     resolution   600 or 1200x600; draft, low, medium or high
///     scale        percent, without sign

/// The names, in the order above.
std::span<const std::string_view> documentFieldNames();

/// What a field says whose bit is not set.
inline constexpr std::string_view kNotSet = "not set";

/// What a field says, in the words above, or that it is not set.
std::string documentFieldText(const PublicFields& fields, std::string_view name);

/// Sets a field and its bit, as a program does.
/// @return empty, or what was expected instead of the text, with nothing changed.
std::string setDocumentField(PublicFields& fields, std::string_view name, std::string_view text);

} // namespace o7::story
