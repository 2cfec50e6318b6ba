#include "uispincontrol.h"

#include "cxstring.h"

#include <commctrl.h>

namespace {

constexpr DWORD kDefaultStyle = WS_CHILD | WS_BORDER | UDS_ARROWKEYS | UDS_NOTHOUSANDS;
static_assert(kDefaultStyle == 0x408000A0);

/// What the default style does not let through: a buddy found and written by the spin itself.
constexpr DWORD kClearedStyle = UDS_SETBUDDYINT | UDS_AUTOBUDDY;
static_assert(kClearedStyle == 0x12);

DWORD fullStyle(DWORD style, bool defaultStyle)
{
    return WS_VISIBLE | (defaultStyle ? (style & ~kClearedStyle) | kDefaultStyle : style);
}

} // namespace

UISpinControl::UISpinControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                             SIZE size, DWORD style, bool defaultStyle, int minimum, int maximum)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(UPDOWN_CLASSW, fullStyle(style, defaultStyle));
    setRange(minimum, maximum);
}

UISpinControl::~UISpinControl() = default;

void UISpinControl::dump() const
{
    int minimum = 0;
    int maximum = 0;
    ::SendMessageW(getHwnd(), UDM_GETRANGE32, reinterpret_cast<WPARAM>(&minimum),
                   reinterpret_cast<LPARAM>(&maximum));
    dumpWindow(L"spin", CXString::Formatted(L"%d of %d to %d", getPosition(), minimum, maximum));
}

int UISpinControl::getPosition() const
{
    return static_cast<int>(::SendMessageW(getHwnd(), UDM_GETPOS32, 0, 0));
}

void UISpinControl::setPosition(int position)
{
    if (getPosition() != position) {
        ::SendMessageW(getHwnd(), UDM_SETPOS32, 0, position);
    }
}

void UISpinControl::setRange(int minimum, int maximum)
{
    ::SendMessageW(getHwnd(), UDM_SETRANGE32, static_cast<WPARAM>(minimum), maximum);
}

void UISpinControl::setBuddy(HWND buddy)
{
    if (reinterpret_cast<HWND>(::SendMessageW(getHwnd(), UDM_GETBUDDY, 0, 0)) != buddy) {
        ::SendMessageW(getHwnd(), UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy), 0);
    }
}
