#include "frontwindow.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <array>

#include "othersmemory.h"
#include "otherwindow.h"

namespace o7::story {
namespace {

constexpr int kMessageText = 0xFFFF;
constexpr int kApplyButton = 0x3021;
constexpr std::size_t kTitleLength = 256;

struct ButtonMeaning
{
    std::string_view text;
    int id;
};
constexpr std::array<ButtonMeaning, 3> kMeanings{
    {{"OK", IDOK}, {"Cancel", IDCANCEL}, {"Apply", kApplyButton}}};

bool isPushButton(HWND window)
{
    constexpr LONG_PTR kType = 0xF;
    const LONG_PTR type = GetWindowLongPtrW(window, GWL_STYLE) & kType;
    return hasClass(window, WC_BUTTONW) && (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON);
}

/// A tab's text is asked for with addresses of its own process.
std::string tabText(HWND tabs, int index)
{
    struct Request
    {
        TCITEMW item;
        wchar_t text[kTitleLength];
    };
    const OthersMemory memory(tabs, sizeof(Request));
    Request request{};
    request.item.mask = TCIF_TEXT;
    request.item.cchTextMax = kTitleLength;
    request.item.pszText =
        reinterpret_cast<wchar_t*>(static_cast<char*>(memory.address()) + offsetof(Request, text));
    memory.write(&request, sizeof request);
    ask(tabs, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(memory.address()));
    memory.read(&request, sizeof request);
    request.text[kTitleLength - 1] = L'\0';
    return utf8(request.text);
}

} // namespace

FrontWindow::FrontWindow(HWND window) : m_window(window)
{
    // A dialog does not know the message and answers 0.
    const auto tabs = reinterpret_cast<HWND>(ask(window, PSM_GETTABCONTROL));
    if (tabs != nullptr && IsChild(window, tabs)) {
        m_tabs = tabs;
    }
}

FrontWindow FrontWindow::of(DWORD thread)
{
    if (thread == 0) {
        return {}; // which the system takes for every thread
    }
    for (HWND window : visibleWindowsOf(thread)) {
        if (IsWindowEnabled(window) && hasClass(window, L"#32770")) {
            return FrontWindow(window);
        }
    }
    return {};
}

bool FrontWindow::isMessage() const
{
    return m_window != nullptr && !isSheet() && GetDlgItem(m_window, kMessageText) != nullptr;
}

std::string FrontWindow::caption() const
{
    return textOf(m_window);
}

std::string FrontWindow::messageText() const
{
    return textOf(GetDlgItem(m_window, kMessageText));
}

HWND FrontWindow::page() const
{
    return isSheet() ? reinterpret_cast<HWND>(ask(m_window, PSM_GETCURRENTPAGEHWND)) : m_window;
}

std::vector<TabTitle> FrontWindow::tabs() const
{
    std::vector<TabTitle> titles;
    const int count = isSheet() ? static_cast<int>(ask(m_tabs, TCM_GETITEMCOUNT)) : 0;
    titles.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i) {
        titles.emplace_back(tabText(m_tabs, i));
    }
    return titles;
}

int FrontWindow::currentTab() const
{
    return static_cast<int>(ask(m_tabs, TCM_GETCURSEL));
}

std::string FrontWindow::statusText() const
{
    HWND front = page();
    HWND text = findChild(m_window, [&](HWND window) {
        return hasClass(window, WC_STATICW) && IsWindowVisible(window) && !IsChild(front, window) &&
               ask(window, WM_GETTEXTLENGTH) > 0;
    });
    return isSheet() && text != nullptr ? textOf(text) : std::string();
}

POINT FrontWindow::placeOfTab(int index) const
{
    const OthersMemory memory(m_tabs, sizeof(RECT));
    ask(m_tabs, TCM_GETITEMRECT, static_cast<WPARAM>(index),
        reinterpret_cast<LPARAM>(memory.address()));
    RECT area{};
    memory.read(&area, sizeof area);
    POINT middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    MapWindowPoints(m_tabs, nullptr, &middle, 1);
    return middle;
}

HWND FrontWindow::button(const std::string& text) const
{
    const auto says = [&](HWND window) {
        return isPushButton(window) && IsWindowVisible(window) &&
               plainLabel(textOf(window)) == text;
    };
    if (HWND found = findChild(m_window, says)) {
        return found;
    }
    const auto* const meaning = std::ranges::find(kMeanings, text, &ButtonMeaning::text);
    HWND known = meaning == kMeanings.end() ? nullptr : GetDlgItem(m_window, meaning->id);
    return known != nullptr && IsWindowVisible(known) ? known : nullptr;
}

std::string FrontWindow::description() const
{
    std::string text = quoted(caption());
    if (isMessage()) {
        text.append(": ").append(quoted(messageText()));
    }
    std::ranges::replace_if(
        text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return text;
}

void FrontWindow::cancel() const
{
    if (isSheet()) {
        PostMessageW(m_window, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        return;
    }
    PostMessageW(m_window, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(m_window, IDCANCEL)));
    if (isMessage()) {
        PostMessageW(m_window, WM_CLOSE, 0, 0); // one with OK alone goes by this only
    }
}

} // namespace o7::story
