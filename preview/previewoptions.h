#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace o7 {

/// The four ways into the UI module, named after what the caller of each one brings along.
enum class PreviewEntry
{
    Sheet,  ///< the module shows a property sheet of its own
    Cpsui,  ///< the driver's plug-in adds the pages to the print system's common property sheet
    Dialog, ///< one modal dialog, no pages
    Child,  ///< the pages go to a property sheet that the preview has opened
};

/// What the command line asks for. Fields that were not given keep the defaults below.
struct PreviewOptions
{
    std::wstring product;           ///< folder name; empty: the first product there is
    std::wstring productsDirectory; ///< empty: the folder products beside the program
    std::optional<int> mode;        ///< 1..4
    PreviewEntry entry = PreviewEntry::Sheet;
    std::wstring language;       ///< empty: the language of the person's system
    std::wstring shotsDirectory; ///< empty: no pictures
    std::wstring snapshotFile;   ///< empty: no snapshot
    std::wstring userDirectory;  ///< empty: the person's application directory
    std::optional<int> family;   ///< another value of feature 285
    std::wstring checkedPackage; ///< not empty: check this package instead of opening anything
    std::vector<std::wstring> stories; ///< not empty: play these instead of opening anything
    bool gallery = false;              ///< the controls themselves instead of a product
    bool longer = false;               ///< every text a third longer
    bool mirrored = false;             ///< the gallery right to left
    bool classic = false;              ///< the gallery without themes
    bool help = false;

    /// The mode to open: as given, else the one that the entry shows something in.
    int effectiveMode() const { return mode.value_or(entry == PreviewEntry::Dialog ? 3 : 1); }

    /// True when nobody sits in front of the window: it is driven, and nothing may wait for a key.
    bool unattended() const { return !shotsDirectory.empty() || !snapshotFile.empty(); }
};

/// Options, or the sentence that says what is wrong with them.
struct ParsedOptions
{
    PreviewOptions options;
    std::wstring error; ///< empty when everything was understood
};

/// Reads the words after the program's name; `--name value` and `--name=value` are the same.
ParsedOptions parsePreviewOptions(std::span<const std::wstring> words);

std::wstring_view entryName(PreviewEntry entry);

/// The text of `--help`, ending with a line break.
std::wstring_view previewUsage();

} // namespace o7
