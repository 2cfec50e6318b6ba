#include "uicheckboxcontrol.h"

#include "cxstring.h"

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
static_assert((kStyle | BS_AUTOCHECKBOX) == 0x50010003);
static_assert((kStyle | BS_AUTO3STATE) == 0x50010006);

const wchar_t* stateName(int state)
{
    return state == BST_CHECKED     ? L"checked"
           : state == BST_UNCHECKED ? L"unchecked"
                                    : L"indeterminate";
}

} // namespace

UICheckBoxControl::UICheckBoxControl(HWND parent, int id, UIServices& services, HFONT font,
                                     POINT location, SIZE size, bool threeState)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", kStyle | (threeState ? BS_AUTO3STATE : BS_AUTOCHECKBOX));
}

UICheckBoxControl::~UICheckBoxControl() = default;

void UICheckBoxControl::dump() const
{
    dumpWindow(L"check", stateName(getCheck()));
}

int UICheckBoxControl::getCheck() const
{
    return static_cast<int>(::SendMessageW(getHwnd(), BM_GETCHECK, 0, 0));
}

void UICheckBoxControl::setCheck(int state)
{
    if (getCheck() != state) {
        ::SendMessageW(getHwnd(), BM_SETCHECK, static_cast<WPARAM>(state), 0);
    }
}
