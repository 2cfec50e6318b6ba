#include "uieditcontrol.h"

#include "cxstring.h"
#include "windowtext.h"

#include <algorithm>

namespace {

constexpr DWORD kBorderedStyle = WS_CHILD | WS_BORDER | WS_TABSTOP | ES_AUTOVSCROLL;
static_assert(kBorderedStyle == 0x40810040);

} // namespace

UIEditControl::UIEditControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                             SIZE size, DWORD style, bool bordered, int textLimit)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(L"EDIT", style | WS_VISIBLE | (bordered ? kBorderedStyle : 0));
    ::SendMessageW(getHwnd(), EM_LIMITTEXT, static_cast<WPARAM>(std::max(0, textLimit)), 0);
    subclassWindow(getHwnd());
}

UIEditControl::~UIEditControl()
{
    restoreProcedure();
}

void UIEditControl::dump() const
{
    dumpWindow(L"edit", {});
}

CXString UIEditControl::getText() const
{
    return o7::windowText(getHwnd());
}

void UIEditControl::setText(const CXString& text)
{
    o7::setWindowTextIfDifferent(getHwnd(), text);
}

void UIEditControl::selectAll()
{
    ::SendMessageW(getHwnd(), EM_SETSEL, 0, -1);
}

LRESULT UIEditControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                               LPARAM lParam)
{
    if (message != WM_PASTE) {
        return callSavedProcedure(window, message, wParam, lParam);
    }
    // Cut off at the limit, a pasted text would be another one without a word about it.
    const LRESULT limit = ::SendMessageW(window, EM_GETLIMITTEXT, 0, 0);
    ::SendMessageW(window, EM_LIMITTEXT, 0, 0);
    const LRESULT result = callSavedProcedure(window, message, wParam, lParam);
    ::SendMessageW(window, EM_LIMITTEXT, static_cast<WPARAM>(limit), 0);
    return result;
}
