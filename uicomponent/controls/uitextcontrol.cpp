#include "uitextcontrol.h"

#include "cxstring.h"
#include "windowtext.h"

UITextControl::UITextControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                             SIZE size, DWORD style, bool visible, HFONT boldFont)
    : UIControl(parent, id, services, font, location, size, false), m_boldFont(boldFont)
{
    setControl(this);
    setVisibleFlag(visible);
    createControlWindow(L"STATIC", style | WS_CHILD | (visible ? WS_VISIBLE : 0));
}

UITextControl::~UITextControl() = default;

bool UITextControl::handleMessage(const _UIWindowsMessage& /*message*/)
{
    return false;
}

void UITextControl::clearText() const
{
    o7::setWindowTextIfDifferent(getHwnd(), {});
}

void UITextControl::boldText(bool bold)
{
    const auto font = reinterpret_cast<LPARAM>(bold ? m_boldFont : getParentFont());
    if (::SendMessageW(getHwnd(), WM_GETFONT, 0, 0) != font) {
        ::SendMessageW(getHwnd(), WM_SETFONT, static_cast<WPARAM>(font), TRUE);
    }
}

void UITextControl::dump() const
{
    dumpWindow(L"text", {});
}
