#pragma once

#include <windows.h>

class CXString;

namespace o7 {

/// Draws one entry of a list, or the field of a closed one, in the system's colours: the chosen one
/// highlighted, an unavailable one grey and never highlighted, everything grey in a disabled list.
/// @param text  of the entry; not looked at when the item is an empty field (itemID -1)
void drawEntry(const DRAWITEMSTRUCT& item, const CXString& text, bool isUnavailable);

} // namespace o7
