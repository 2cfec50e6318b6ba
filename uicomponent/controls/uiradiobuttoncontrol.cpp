#include "uiradiobuttoncontrol.h"

#include "checkstate.h"
#include "cxstring.h"
#include "windowtext.h"

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | BS_RADIOBUTTON;
static_assert(kStyle == 0x50000004);

} // namespace

UIRadioButtonControl::UIRadioButtonControl(HWND parent, int id, UIServices& services, HFONT font,
                                           POINT location, SIZE size, DWORD style)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", kStyle | style);
}

UIRadioButtonControl::~UIRadioButtonControl() = default;

void UIRadioButtonControl::dump() const
{
    dumpWindow(L"radio", o7::checkStateName(getCheck()));
}

void UIRadioButtonControl::setText(const CXString& text)
{
    o7::setWindowTextIfDifferent(getHwnd(), text);
}

int UIRadioButtonControl::getCheck() const
{
    return o7::checkState(getHwnd());
}

void UIRadioButtonControl::setCheck(int state)
{
    o7::setCheckState(getHwnd(), state);
}
