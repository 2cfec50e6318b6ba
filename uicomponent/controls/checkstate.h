#pragma once

#include <windows.h>

namespace o7 {

/// What a check box or radio button shows: BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
int checkState(HWND button) noexcept;

/// Shows the state without a notification; nothing happens when it is shown already.
void setCheckState(HWND button, int state) noexcept;

/// The state in words, for dump().
const wchar_t* checkStateName(int state) noexcept;

} // namespace o7
