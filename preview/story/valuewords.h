#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ifeaturenode.h"

namespace o7::story {

/// How stories write the values of features: an option's name, a number, a text, "true" or "false",
/// "2-5", "210 mm" (also inch and pt; read in millimetres), "600x1200", "unspecified"; of a list of
/// values the number of its items.

std::string valueText(const IFeatureNode& feature);

/// Monostate for "unspecified", nothing for a text that is no value of a feature of this kind. That
/// the feature takes the value is not said.
std::optional<FeatureValue> valueOf(const IFeatureNode& feature, std::string_view text);

/// What valueOf() understands for this kind of feature, as the end of a sentence.
std::string_view valueForm(FeatureKind kind);

} // namespace o7::story
