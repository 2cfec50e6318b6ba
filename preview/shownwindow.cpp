#include "shownwindow.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <array>

namespace o7 {
namespace {

using TextBuffer = std::array<wchar_t, 512>;

bool hasClass(HWND window, const wchar_t* name)
{
    TextBuffer text{};
    GetClassNameW(window, text.data(), static_cast<int>(text.size()));
    return lstrcmpiW(text.data(), name) == 0;
}

std::wstring windowText(HWND window)
{
    TextBuffer text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

struct OtherWindowSearch
{
    HWND known;
    HWND found;
};

BOOL CALLBACK considerWindow(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<OtherWindowSearch*>(parameter);
    if (window == search.known || !IsWindowVisible(window) || !IsWindowEnabled(window) ||
        !hasClass(window, L"#32770")) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

BOOL CALLBACK appendStaticText(HWND child, LPARAM parameter)
{
    if (hasClass(child, L"Static")) {
        if (const std::wstring text = windowText(child); !text.empty()) {
            *reinterpret_cast<std::wstring*>(parameter) += L" " + text;
        }
    }
    return TRUE;
}

} // namespace

ShownWindow::ShownWindow(HWND window) : m_window(window)
{
    // A dialog does not know the message and answers 0.
    const auto tabs = reinterpret_cast<HWND>(SendMessageW(window, PSM_GETTABCONTROL, 0, 0));
    if (tabs && IsChild(window, tabs)) {
        m_tabs = tabs;
    }
}

int ShownWindow::pageCount() const
{
    return m_tabs ? static_cast<int>(SendMessageW(m_tabs, TCM_GETITEMCOUNT, 0, 0)) : 1;
}

std::wstring ShownWindow::pageTitle(int index) const
{
    if (!m_tabs) {
        return windowText(m_window);
    }
    TextBuffer text{};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendMessageW(m_tabs, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    std::wstring title = item.pszText ? item.pszText : L"";
    std::erase(title, L'&');
    return title;
}

void ShownWindow::selectPage(int index) const
{
    if (m_tabs) {
        SendMessageW(m_window, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
}

int ShownWindow::currentPage() const
{
    return m_tabs ? static_cast<int>(SendMessageW(m_tabs, TCM_GETCURSEL, 0, 0)) : 0;
}

bool ShownWindow::pageIsShown() const
{
    if (!m_tabs) {
        return isOpen();
    }
    const auto page = reinterpret_cast<HWND>(SendMessageW(m_window, PSM_GETCURRENTPAGEHWND, 0, 0));
    return page && IsWindowVisible(page);
}

void ShownWindow::cancel() const
{
    if (!isOpen()) {
        return;
    }
    if (m_tabs) {
        PostMessageW(m_window, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    } else {
        PostMessageW(m_window, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                     reinterpret_cast<LPARAM>(GetDlgItem(m_window, IDCANCEL)));
    }
}

std::wstring ShownWindow::description() const
{
    std::wstring text = windowText(m_window) + L":";
    EnumChildWindows(m_window, appendStaticText, reinterpret_cast<LPARAM>(&text));
    std::ranges::replace_if(
        text, [](wchar_t c) { return c == L'\r' || c == L'\n'; }, L' ');
    return text;
}

HWND ShownWindow::findOther(HWND known)
{
    OtherWindowSearch search{known, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), considerWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace o7
