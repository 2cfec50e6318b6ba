#include "uislidercontrol.h"

#include "cxstring.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdint>

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | TBS_AUTOTICKS;
static_assert(kStyle == 0x50010001);

/// Bits of the caller's style that do not go with a horizontal slider with ticks below.
constexpr DWORD kClearedStyle = TBS_VERT | TBS_TOP | 0xC0;
static_assert(kClearedStyle == 0xC6);

int ticksAtEvery(int steps, int minimum, int maximum)
{
    constexpr std::int64_t kMostTicks = 1000;
    constexpr std::int64_t kWidestStep = 0xFFFF; // the window takes 16 bits of it
    const std::int64_t values = std::int64_t{maximum} - minimum;
    return static_cast<int>(
        std::min(kWidestStep, std::max<std::int64_t>(steps, values / kMostTicks)));
}

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
    setRange(minimum, maximum);
}

UISliderControl::~UISliderControl() = default;

void UISliderControl::dump() const
{
    dumpWindow(L"slider",
               CXString::Formatted(L"%d of %d to %d", getPosition(), getMinimum(), getMaximum()));
}

void UISliderControl::setRange(int minimum, int maximum)
{
    // The window keeps each tick, so they have to be few at every moment.
    const int frequency = ticksAtEvery(m_tickSteps, minimum, maximum);
    if (frequency > m_frequency) {
        ::SendMessageW(getHwnd(), TBM_SETTICFREQ, static_cast<WPARAM>(frequency), 0);
    }
    if (minimum != getMinimum() || maximum != getMaximum()) {
        // The first end is set without a repaint, the second places the ticks.
        ::SendMessageW(getHwnd(), TBM_SETRANGEMIN, FALSE, minimum);
        ::SendMessageW(getHwnd(), TBM_SETRANGEMAX, TRUE, maximum);
    }
    if (frequency < m_frequency) {
        ::SendMessageW(getHwnd(), TBM_SETTICFREQ, static_cast<WPARAM>(frequency), 0);
    }
    m_frequency = frequency;
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
    m_tickSteps = std::max(1, steps);
    setRange(getMinimum(), getMaximum());
}

void UISliderControl::setSteps(int line, int page)
{
    ::SendMessageW(getHwnd(), TBM_SETLINESIZE, 0, line);
    ::SendMessageW(getHwnd(), TBM_SETPAGESIZE, 0, page);
}
