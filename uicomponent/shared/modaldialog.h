#pragma once

#include <windows.h>

class UIDialogTemplate;
class UIMessageManager;

namespace o7 {

/// Runs a modal dialog of this module (UIDialogProcedure::dialogProcedure) in its activation
/// context. @return what ended it; -1 when it could not be shown.
INT_PTR runModalDialog(HINSTANCE instance, const UIDialogTemplate& dialogTemplate, HWND owner,
                       UIMessageManager& messages);

} // namespace o7
