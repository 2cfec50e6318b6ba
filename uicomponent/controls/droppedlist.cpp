#include "droppedlist.h"

#include "accessibility.h"
#include "uicomboboxcontrol.h"

#include <utility>

namespace o7 {

DroppedList::DroppedList(UIComboBoxControl& combo, HWND list) : m_combo(combo), m_list(list)
{
    subclassWindow(list);
}

DroppedList::~DroppedList()
{
    restoreProcedure();
}

void DroppedList::tellGreyEntries(std::vector<LONG> entries)
{
    if (m_accessibility == nullptr) {
        m_accessibility = std::make_unique<Accessibility>(m_list);
    }
    m_accessibility->setUnavailableParts(std::move(entries));
}

void DroppedList::onAccessibilityMessage(UINT message) noexcept
{
    if (message == WM_GETOBJECT) {
        m_combo.onAccessibilityMessage(message);
    }
    if (m_accessibility != nullptr) {
        m_accessibility->handleMessage(message);
    }
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
