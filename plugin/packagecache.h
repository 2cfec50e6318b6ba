#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "datamodelfactory.h"

namespace o7 {

/// The package that this process used last: a print dialog asks dozens of questions, each of which
/// needs it, and reading it is most of the work. It is read again when its file has changed. Any
/// thread.
/// @param package  the file, or the folder that holds it.
/// @param errors   as of LoadProductPackage.
/// @return null when it cannot be loaded; that is not remembered.
std::shared_ptr<const ProductPackage> cachedPackage(const std::filesystem::path& package,
                                                    std::vector<PackageError>& errors);

} // namespace o7
