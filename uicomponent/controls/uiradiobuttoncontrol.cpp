#include "uiradiobuttoncontrol.h"

#include "buttonpicture.h"
#include "checkstate.h"
#include "cxstring.h"
#include "dialogconversion.h"
#include "isolationaware.h"
#include "windowtext.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | BS_RADIOBUTTON;
static_assert(kStyle == 0x50000004);
constexpr SIZE kPictureMargin{4, 4}; // dialog units that a picture is smaller by, each way

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
    ::SendMessageW(getHwnd(), BM_SETDONTCLICK, TRUE, 0); // getting the focus is no choice
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
        showPicture();
        return;
    }
    const bool wasTabStop = hasStyle(getHwnd(), WS_TABSTOP);
    o7::setCheckState(getHwnd(), state);
    showPicture();
    if (state == BST_CHECKED) {
        claimTabStop(getHwnd());
    } else {
        // Windows takes the stop away with the check; a group without any could not be reached.
        giveTabStop(getHwnd(), wasTabStop);
    }
}

void UIRadioButtonControl::setPictures(int picture, int checkedPicture)
{
    const SIZE margin = getConversion().dialogUnitsToPixels(kPictureMargin);
    const SIZE whole = getDimensionInPixels();
    const SIZE area{whole.cx - margin.cx, whole.cy - margin.cy};
    const HINSTANCE module = IsolationAware::moduleInstance();
    m_picture = o7::loadButtonPicture(module, picture, area);
    if (!m_picture) {
        return;
    }
    if (checkedPicture != picture) {
        m_checkedPicture = o7::loadButtonPicture(module, checkedPicture, area);
    }
    ::SetWindowLongPtrW(getHwnd(), GWL_STYLE,
                        ::GetWindowLongPtrW(getHwnd(), GWL_STYLE) | LONG_PTR{BS_ICON});
}

/// Not before the check is known: some systems do not give back what an exchanged picture took.
void UIRadioButtonControl::showPicture()
{
    const bool isChecked = getCheck() == BST_CHECKED && m_checkedPicture;
    const HICON wanted = (isChecked ? m_checkedPicture : m_picture).get();
    if (wanted != m_shownPicture) {
        m_shownPicture = wanted;
        ::SendMessageW(getHwnd(), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(wanted));
    }
}

void UIRadioButtonControl::setTabStop(bool stops)
{
    giveTabStop(getHwnd(), stops);
}

LRESULT UIRadioButtonControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                      LPARAM lParam)
{
    const o7::Mortal::Watch watch(m_life);
    const LRESULT result = callSavedProcedure(window, message, wParam, lParam);
    // An arrow key chooses the button that it reaches. Some systems say so, others only move there.
    if (watch.isAlive() && message == WM_SETFOCUS && isArrowKeyDown() &&
        getCheck() == BST_UNCHECKED) {
        ::SendMessageW(getParentHwnd(), WM_COMMAND, MAKEWPARAM(getId(), BN_CLICKED),
                       reinterpret_cast<LPARAM>(window));
    }
    return result;
}
