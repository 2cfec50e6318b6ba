#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>

#include "productsession.h"

namespace o7 {

/// The package of the product that a printer stands for. `folder` is the plug-in's own:
///  - `products\<P>\package.json` in it, when P is the stem of the driver's data file: several
///    products share one driver folder;
///  - else `package.json` in it: the print system copied one product's files flat;
///  - else the first of `products\*\package.json` by name.
/// Empty when there is none.
std::filesystem::path findPackage(const std::filesystem::path& folder,
                                  const std::filesystem::path& dataFile);

/// The driver's data file of a printer; empty when it cannot be asked.
std::filesystem::path driverDataFile(HANDLE printer);

/// The product of this printer with the language of the user's desktop, the printer's own device
/// settings, and its name as the value of the feature that names the printer.
/// @param printer      null: the product of the process's stand-in, or the one that is found
///                     without knowing the driver's data file.
/// @param printerName  may be null: the package's own name stays.
/// @throws OrvikException with every fault of the package, or saying that there is none.
std::unique_ptr<ProductSession> openProductOf(HANDLE printer, const wchar_t* printerName);

} // namespace o7
