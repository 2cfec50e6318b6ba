#include "droppedlist.h"

#include "uicomboboxcontrol.h"

namespace o7 {

DroppedList::DroppedList(UIComboBoxControl& combo, HWND list) : m_combo(combo)
{
    subclassWindow(list);
}

DroppedList::~DroppedList()
{
    restoreProcedure();
}

LRESULT DroppedList::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                             LPARAM lParam)
{
    if (m_combo.filterPointing(window, message, lParam)) {
        return 0;
    }
    return callSavedProcedure(window, message, wParam, lParam);
}

} // namespace o7
