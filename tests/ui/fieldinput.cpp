#include "fieldinput.h"

#include <commctrl.h>

#include "cxstring.h"
#include "input.h"
#include "windowtext.h"

namespace o7::test {

HWND boxOf(HWND page, int wanted)
{
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[32] = L"";
        GetClassNameW(child, name, 32);
        if ((_wcsicmp(name, L"EDIT") == 0 || _wcsicmp(name, TRACKBAR_CLASSW) == 0) && wanted-- == 0)
            return child;
    }
    return nullptr;
}

std::string textOf(HWND box)
{
    wchar_t name[32] = L"";
    GetClassNameW(box, name, 32);
    if (_wcsicmp(name, TRACKBAR_CLASSW) == 0)
        return std::to_string(SendMessageW(box, TBM_GETPOS, 0, 0));
    return o7::windowText(box).ToUtf8();
}

void focus(HWND box)
{
    pumpMessages(); // a new dialog has its own wish for the focus
    SendMessageW(GetParent(box), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(box), TRUE);
}

void enter(HWND box, const wchar_t* text)
{
    focus(box);
    SendMessageW(box, EM_SETSEL, 0, -1);
    if (!*text)
        SendMessageW(box, WM_CLEAR, 0, 0);
    for (; *text; ++text)
        SendMessageW(box, WM_CHAR, static_cast<WPARAM>(*text), 1);
    pumpMessages();
}

std::string shownTip()
{
    pumpMessages(); // it comes behind the focus
    std::string text;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            wchar_t name[32] = L"";
            GetClassNameW(window, name, 32);
            if (_wcsicmp(name, TOOLTIPS_CLASSW) != 0 || !IsWindowVisible(window))
                return TRUE;
            const auto count = static_cast<WPARAM>(SendMessageW(window, TTM_GETTOOLCOUNT, 0, 0));
            for (WPARAM index = 0; index < count; ++index) {
                wchar_t shown[512] = L"";
                TTTOOLINFOW info{};
                info.cbSize = TTTOOLINFOW_V2_SIZE;
                info.lpszText = shown;
                SendMessageW(window, TTM_ENUMTOOLSW, index, reinterpret_cast<LPARAM>(&info));
                if (info.uFlags & TTF_TRACK)
                    *reinterpret_cast<std::string*>(parameter) = CXString(shown).ToUtf8();
            }
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&text));
    return text;
}

} // namespace o7::test
