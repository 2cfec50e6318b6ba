#pragma once

#include <filesystem>

#include "previewrun.h"

namespace o7 {

/// Checks the package that "--check" names: a folder, a package.json, or one of the products of the
/// catalogue. Mistakes and hints go to the error stream, one to a line as "file:line: text", then
/// comes a line that sums up.
/// @return Done without mistakes, Failed with some, BadInput when there is no such package.
ExitCode runPackageCheck(const PreviewOptions& options, const std::filesystem::path& products);

} // namespace o7
