#include "uiradiobuttoncontrol.h"

#include "checkstate.h"
#include "cxstring.h"
#include "windowtext.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | BS_RADIOBUTTON;
static_assert(kStyle == 0x50000004);

bool hasStyle(HWND window, LONG_PTR bit)
{
    return (::GetWindowLongPtrW(window, GWL_STYLE) & bit) != 0;
}

void giveTabStop(HWND window, bool stops)
{
    const LONG_PTR style = ::GetWindowLongPtrW(window, GWL_STYLE);
    const LONG_PTR wanted = stops ? style | WS_TABSTOP : style & ~LONG_PTR{WS_TABSTOP};
    if (wanted != style) {
        ::SetWindowLongPtrW(window, GWL_STYLE, wanted);
    }
}

/// Makes the button the only one of its group that Tab stops at. Windows does so for the buttons
/// that change their check, which leaves the first of a fresh group out.
void claimTabStop(HWND button)
{
    HWND first = button;
    while (first != nullptr && !hasStyle(first, WS_GROUP)) {
        first = ::GetWindow(first, GW_HWNDPREV);
    }
    for (HWND other = first; other != nullptr; other = ::GetWindow(other, GW_HWNDNEXT)) {
        if (other != first && hasStyle(other, WS_GROUP)) {
            break; // the next group
        }
        giveTabStop(other, other == button);
    }
}

bool isArrowKeyDown()
{
    constexpr int kArrows[] = {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN};
    return std::any_of(std::begin(kArrows), std::end(kArrows),
                       [](int key) { return ::GetKeyState(key) < 0; });
}

} // namespace

UIRadioButtonControl::UIRadioButtonControl(HWND parent, int id, UIServices& services, HFONT font,
                                           POINT location, SIZE size, DWORD style)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", kStyle | style);
    subclassWindow(getHwnd());
}

UIRadioButtonControl::~UIRadioButtonControl()
{
    restoreProcedure();
}

void UIRadioButtonControl::dump() const
{
    dumpWindow(L"radio", o7::checkStateName(getCheck()));
}

void UIRadioButtonControl::setText(const CXString& text)
{
    setLabelText(text);
}

int UIRadioButtonControl::getCheck() const
{
    return o7::checkState(getHwnd());
}

void UIRadioButtonControl::setCheck(int state)
{
    if (getCheck() == state) {
        return;
    }
    const bool wasTabStop = hasStyle(getHwnd(), WS_TABSTOP);
    o7::setCheckState(getHwnd(), state);
    if (state == BST_CHECKED) {
        claimTabStop(getHwnd());
    } else {
        // Windows takes the stop away with the check; a group without any could not be reached.
        giveTabStop(getHwnd(), wasTabStop);
    }
}

void UIRadioButtonControl::setTabStop(bool stops)
{
    giveTabStop(getHwnd(), stops);
}

LRESULT UIRadioButtonControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                      LPARAM lParam)
{
    const LRESULT result = callSavedProcedure(window, message, wParam, lParam);
    // An arrow key chooses the button that it reaches. Some systems say so, others only move there.
    if (message == WM_SETFOCUS && isArrowKeyDown() && getCheck() == BST_UNCHECKED) {
        ::SendMessageW(getParentHwnd(), WM_COMMAND, MAKEWPARAM(getId(), BN_CLICKED),
                       reinterpret_cast<LPARAM>(window));
    }
    return result;
}
