#include "uitextcontrol.h"

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
    ::SetWindowTextW(getHwnd(), L"");
}

void UITextControl::boldText(bool bold)
{
    const HFONT font = bold ? m_boldFont : getParentFont();
    ::SendMessageW(getHwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void UITextControl::dump() const
{
    dumpWindow(L"text", {});
}
