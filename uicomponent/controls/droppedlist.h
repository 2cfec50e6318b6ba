#pragma once

#include "subclassedwindow.h"

class UIComboBoxControl;

namespace o7 {

/// Stands before the list that a combo box drops, so that pointing at its grey entries explains
/// them instead of taking them. The list belongs to the combo box's window.
class DroppedList : private SubclassedWindow<DroppedList>
{
public:
    DroppedList(UIComboBoxControl& combo, HWND list);
    ~DroppedList();

private:
    friend SubclassedWindow<DroppedList>;
    static constexpr const wchar_t* kProcedureName = L"DroppedList::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"droppedlist";

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void forgetWindow() noexcept {}

    UIComboBoxControl& m_combo;
};

} // namespace o7
