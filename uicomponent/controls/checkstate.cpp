#include "checkstate.h"

namespace o7 {

int checkState(HWND button) noexcept
{
    return static_cast<int>(::SendMessageW(button, BM_GETCHECK, 0, 0));
}

void setCheckState(HWND button, int state) noexcept
{
    if (checkState(button) != state) {
        ::SendMessageW(button, BM_SETCHECK, static_cast<WPARAM>(state), 0);
    }
}

const wchar_t* checkStateName(int state) noexcept
{
    return state == BST_CHECKED     ? L"checked"
           : state == BST_UNCHECKED ? L"unchecked"
                                    : L"indeterminate";
}

} // namespace o7
