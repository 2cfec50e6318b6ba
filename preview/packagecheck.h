#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "datamodelfactory.h"
#include "textscript.h"

namespace o7 {

/// What a check of a product package found.
struct PackageReport
{
    std::filesystem::path file; ///< the package.json that was checked
    bool found = true;          ///< false: there is no such package
    std::vector<PackageError> mistakes;
    std::vector<PackageError> hints; ///< what may be meant but is worth a look
};

/// The texts of a built product in one language; nothing when there are none.
using BuiltTexts = std::function<std::optional<PackageTexts>(const std::filesystem::path& folder,
                                                             const std::string& language)>;

/// Checks everything about a product package that can be known without running it, and reports all
/// of it at once:
///  - what keeps the package from loading: syntax, schema, unknown and double ids, circles;
///  - rules that cannot be meant: options that nothing makes reachable, contradictions;
///  - rules of the device that leave a value in force which could no longer be chosen;
///  - in each language: texts that are missing or empty, differing placeholders and mnemonics, keys
///    that two controls of a page share;
///  - pages that show a feature which the package does not have, and pages of documents that show
///    one of the device's;
///  - (hints) texts of the product's own that nothing shows.
/// @param package  the folder, or package.json in it. When the folder has `strings/<language>.rc`,
///                 the scripts are read, and mistakes are told by their lines.
/// @param built    asked for the texts where there are no scripts; may be empty.
PackageReport checkPackage(const std::filesystem::path& package, const BuiltTexts& built = {});

} // namespace o7
