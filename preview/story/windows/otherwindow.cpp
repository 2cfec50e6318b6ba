#include "otherwindow.h"

#include "cxstring.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

constexpr UINT kAnswerMilliseconds = 5000;

struct Search
{
    const std::function<bool(HWND)>* predicate;
    HWND found;
};

BOOL CALLBACK consider(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (!(*search.predicate)(window)) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

BOOL CALLBACK collectVisible(HWND window, LPARAM parameter)
{
    if (IsWindowVisible(window)) {
        reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
    }
    return TRUE;
}

} // namespace

LRESULT ask(HWND window, UINT message, WPARAM first, LPARAM second)
{
    DWORD_PTR result = 0;
    SetLastError(ERROR_SUCCESS);
    if (SendMessageTimeoutW(window, message, first, second, SMTO_NORMAL, kAnswerMilliseconds,
                            &result) == 0 &&
        GetLastError() == ERROR_TIMEOUT) {
        throw StepFailure("The program hangs: its window does not answer.");
    }
    return static_cast<LRESULT>(result);
}

std::string textOf(HWND window)
{
    return textByMessage(window, WM_GETTEXT, 0, ask(window, WM_GETTEXTLENGTH));
}

std::string textByMessage(HWND window, UINT message, WPARAM index, LRESULT length)
{
    if (length <= 0) {
        return {};
    }
    std::vector<wchar_t> text(static_cast<std::size_t>(length) + 2);
    ask(window, message, message == WM_GETTEXT ? text.size() - 1 : index,
        reinterpret_cast<LPARAM>(text.data()));
    text.back() = L'\0';
    return utf8(text.data());
}

bool hasClass(HWND window, const wchar_t* name)
{
    wchar_t text[64];
    return GetClassNameW(window, text, 64) > 0 && lstrcmpiW(text, name) == 0;
}

std::vector<HWND> childrenOf(HWND parent)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        children.push_back(child);
    }
    return children;
}

HWND findChild(HWND parent, const std::function<bool(HWND)>& predicate)
{
    Search search{&predicate, nullptr};
    EnumChildWindows(parent, consider, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> visibleWindowsOf(DWORD thread)
{
    std::vector<HWND> windows;
    EnumThreadWindows(thread, collectVisible, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::string quoted(std::string_view text)
{
    std::string result(1, '"');
    return result.append(text).append(1, '"');
}

std::string utf8(const std::wstring& text)
{
    return CXString(text).ToUtf8();
}

std::wstring wide(const std::string& text)
{
    return std::wstring(CXString(text.c_str()).View());
}

} // namespace o7::story
