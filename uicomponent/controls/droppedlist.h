#pragma once

#include "subclassedwindow.h"

#include <memory>
#include <vector>

class UIComboBoxControl;

namespace o7 {

class Accessibility;

/// Stands before the list that a combo box drops, so that pointing at its grey entries explains
/// them instead of taking them. The list belongs to the combo box's window.
class DroppedList : private SubclassedWindow<DroppedList>
{
public:
    DroppedList(UIComboBoxControl& combo, HWND list);
    ~DroppedList();

    /// For screen readers; numbers from 1 on.
    void tellGreyEntries(std::vector<LONG> entries);

private:
    friend SubclassedWindow<DroppedList>;
    static constexpr const wchar_t* kProcedureName = L"DroppedList::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"droppedlist";

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void onAccessibilityMessage(UINT message) noexcept;
    void forgetWindow() noexcept {}

    UIComboBoxControl& m_combo;
    std::unique_ptr<Accessibility> m_accessibility;
    HWND m_list;
};

} // namespace o7
