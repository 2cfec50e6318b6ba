#include "uicheckboxcontrol.h"

#include "checkstate.h"
#include "cxstring.h"

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
static_assert((kStyle | BS_AUTOCHECKBOX) == 0x50010003);
static_assert((kStyle | BS_AUTO3STATE) == 0x50010006);

} // namespace

UICheckBoxControl::UICheckBoxControl(HWND parent, int id, UIServices& services, HFONT font,
                                     POINT location, SIZE size, bool threeState)
    : UIControl(parent, id, services, font, location, size, false), m_threeState(threeState)
{
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", kStyle | (threeState ? BS_AUTO3STATE : BS_AUTOCHECKBOX));
}

UICheckBoxControl::~UICheckBoxControl() = default;

void UICheckBoxControl::dump() const
{
    dumpWindow(L"check", o7::checkStateName(getCheck()));
}

void UICheckBoxControl::setMultiline()
{
    const LONG_PTR style = ::GetWindowLongPtrW(getHwnd(), GWL_STYLE);
    ::SetWindowLongPtrW(getHwnd(), GWL_STYLE, style | BS_MULTILINE | BS_TOP);
}

int UICheckBoxControl::getCheck() const
{
    return o7::checkState(getHwnd());
}

void UICheckBoxControl::setCheck(int state)
{
    // Without the third state the system would show a tick instead.
    const bool needsThird = m_threeState || state == BST_INDETERMINATE;
    const LONG_PTR style = ::GetWindowLongPtrW(getHwnd(), GWL_STYLE);
    const LONG_PTR wanted =
        (style & ~LONG_PTR{BS_TYPEMASK}) | (needsThird ? BS_AUTO3STATE : BS_AUTOCHECKBOX);
    if (wanted != style) {
        ::SetWindowLongPtrW(getHwnd(), GWL_STYLE, wanted);
    }
    o7::setCheckState(getHwnd(), state);
}
