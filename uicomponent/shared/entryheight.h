#pragma once

#include <windows.h>

namespace o7 {

/// Answers a page's WM_MEASUREITEM for an owner-drawn list or combo box: entries are as high as the
/// page's font. Told so while it is created, the window need not be laid out anew afterwards.
/// False for every other kind of item.
bool answerEntryHeight(HWND page, MEASUREITEMSTRUCT& item) noexcept;

} // namespace o7
