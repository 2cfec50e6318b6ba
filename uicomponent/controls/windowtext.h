#pragma once

#include "cxstring.h"

#include <windows.h>

namespace o7 {

/// The whole text of a window, however long.
CXString windowText(HWND window);

/// Sets the text unless the window shows it already: a repeated text would be painted again.
/// Characters such as "&" keep their meaning. Returns true when it was set.
bool setWindowTextIfDifferent(HWND window, const CXString& text);

/// The text as it is displayed: "&&" is an ampersand, a single "&" before a letter marks the
/// mnemonic and is not shown.
CXString withoutMnemonics(const CXString& text);

/// The other way: a text that is to be displayed as it is, with every ampersand doubled.
CXString withMarkedAmpersands(const CXString& text);

/// A label as a screen reader should say it for the control behind it: without its mnemonic, also
/// when that stands in parentheses at the end, and without the colon.
CXString spokenName(const CXString& label);

/// Line breaks and quotation marks written as escapes, for texts that have to stay on one line.
CXString oneLine(const CXString& text);

} // namespace o7
