#include "uislidercontrol.h"

#include "cxstring.h"

#include <commctrl.h>

#include <algorithm>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | TBS_AUTOTICKS;
static_assert(kStyle == 0x50010001);

/// Bits of the caller's style that do not go with a horizontal slider with ticks below.
constexpr DWORD kClearedStyle = TBS_VERT | TBS_TOP | 0xC0;
static_assert(kClearedStyle == 0xC6);

int ask(HWND slider, UINT message)
{
    return static_cast<int>(::SendMessageW(slider, message, 0, 0));
}

} // namespace

UISliderControl::UISliderControl(HWND parent, int id, UIServices& services, HFONT font,
                                 POINT location, SIZE size, DWORD style, int minimum, int maximum)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(TRACKBAR_CLASSW, (style & ~kClearedStyle) | kStyle);
    // Not shown yet: the first end is set without a repaint, the second places the ticks.
    ::SendMessageW(getHwnd(), TBM_SETRANGEMIN, FALSE, minimum);
    ::SendMessageW(getHwnd(), TBM_SETRANGEMAX, TRUE, maximum);
}

UISliderControl::~UISliderControl() = default;

void UISliderControl::dump() const
{
    dumpWindow(L"slider",
               CXString::Formatted(L"%d of %d to %d", getPosition(), getMinimum(), getMaximum()));
}

int UISliderControl::getMinimum() const
{
    return ask(getHwnd(), TBM_GETRANGEMIN);
}

int UISliderControl::getMaximum() const
{
    return ask(getHwnd(), TBM_GETRANGEMAX);
}

int UISliderControl::getPosition() const
{
    return ask(getHwnd(), TBM_GETPOS);
}

void UISliderControl::setPosition(int position)
{
    const int inRange = std::max(getMinimum(), std::min(position, getMaximum()));
    if (inRange != getPosition()) {
        ::SendMessageW(getHwnd(), TBM_SETPOS, TRUE, inRange);
    }
}

void UISliderControl::setTickFrequency(int steps)
{
    ::SendMessageW(getHwnd(), TBM_SETTICFREQ, static_cast<WPARAM>(steps), 0);
}

void UISliderControl::setSteps(int line, int page)
{
    ::SendMessageW(getHwnd(), TBM_SETLINESIZE, 0, line);
    ::SendMessageW(getHwnd(), TBM_SETPAGESIZE, 0, page);
}
