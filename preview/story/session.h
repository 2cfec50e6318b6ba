#pragma once

#include <string>
#include <string_view>

namespace o7::story {

/// The ways into a product's settings that a story can take.
enum class Entry
{
    Sheet,  ///< the module's own property sheet
    Cpsui,  ///< the installed driver, through the print system's common property sheet
    Child,  ///< pages in a property sheet of the preview
    Dialog, ///< the compact dialog
    InApp,  ///< the print dialog of the system's text editor
    Model,  ///< the data model alone, without a window
};

/// "sheet", "in-app" and so on, as stories name them.
std::string_view entryName(Entry entry);

/// What is opened: it stays the same from one `open` to a `restart`.
struct Session
{
    std::string product; ///< folder name of the package
    Entry entry = Entry::Sheet;
    int mode = 1;         ///< 1..4
    std::string language; ///< "en" when the story says nothing
};

} // namespace o7::story
