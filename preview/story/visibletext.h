#pragma once

#include <string>
#include <string_view>

namespace o7::story {

/// What a person reads where a window's text has marks for the machine. Texts are UTF-8.

/// A label without mnemonic ("&Copies:", "Kopien(&K):") and without the colon at its end.
std::string plainLabel(std::string_view text);

/// The title on a tab, which may carry the mark of a conflict, and may be shortened for it.
struct TabTitle
{
    std::string title; ///< without mark; as far as it is shown
    bool marked = false;
    bool shortened = false;

    explicit TabTitle(std::string_view shown);
    bool isOf(std::string_view wholeTitle) const;
};

} // namespace o7::story
