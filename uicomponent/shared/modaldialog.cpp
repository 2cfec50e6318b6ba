#include "modaldialog.h"

#include "isolationaware.h"
#include "uidialogprocedure.h"
#include "uidialogtemplate.h"

namespace o7 {

INT_PTR runModalDialog(HINSTANCE instance, const UIDialogTemplate& dialogTemplate, HWND owner,
                       UIMessageManager& messages)
{
    UIDialogRecord record{&messages};
    IsolationAware::ActivationScope scope;
    if (!scope.isActive() || !dialogTemplate.get())
        return -1;
    const INT_PTR result = DialogBoxIndirectParamW(instance, dialogTemplate.get(), owner,
                                                   &UIDialogProcedure::dialogProcedure,
                                                   reinterpret_cast<LPARAM>(&record));
    if (result == -1)
        scope.keepLastError();
    return result;
}

} // namespace o7
