#include "appwindows.h"

#include <stdexcept>
#include <vector>

#include "input.h"

namespace o7::inapp {
namespace {

constexpr UINT kAnswerMilliseconds = 1000;
constexpr int kWaitMilliseconds = 10000;

using Predicate = std::function<bool(HWND)>;

/// A message to another process that may hang: 0 then.
LRESULT ask(HWND window, UINT message, WPARAM first, LPARAM second)
{
    DWORD_PTR result = 0;
    return SendMessageTimeoutW(window, message, first, second, SMTO_ABORTIFHUNG,
                               kAnswerMilliseconds, &result) == 0
               ? 0
               : static_cast<LRESULT>(result);
}

struct Search
{
    const Predicate* predicate;
    DWORD process; ///< 0: any
    HWND found;
};

BOOL CALLBACK consider(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if ((search.process != 0 && (process != search.process || !IsWindowVisible(window))) ||
        !(*search.predicate)(window)) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

HWND findTopLevel(DWORD process, const Predicate& predicate)
{
    Search search{&predicate, process, nullptr};
    EnumWindows(consider, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// The texts in a message box of the process, in UTF-8; empty when it shows none.
std::string messageBoxText(DWORD process)
{
    std::wstring text;
    const auto isMessageBox = [&text](HWND window) {
        // A message box has a text with the identifier 0xFFFF and no tabs.
        HWND label = GetDlgItem(window, 0xFFFF);
        if (!hasClass(window, L"#32770") || label == nullptr) {
            return false;
        }
        text = textOf(window) + L": " + textOf(label);
        return true;
    };
    findTopLevel(process, isMessageBox);
    std::string narrow(text.size() * 3, '\0');
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                            static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(length));
    return narrow;
}

} // namespace

std::wstring textOf(HWND window)
{
    std::vector<wchar_t> text(1024);
    ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.back() = L'\0';
    return text.data();
}

HWND findChild(HWND parent, const Predicate& predicate)
{
    Search search{&predicate, 0, nullptr};
    EnumChildWindows(parent, consider, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool hasClass(HWND window, const wchar_t* name)
{
    wchar_t text[64];
    return GetClassNameW(window, text, 64) > 0 && lstrcmpiW(text, name) == 0;
}

HWND waitForWindow(DWORD process, const std::string& what, const Predicate& predicate)
{
    HWND found = nullptr;
    const auto isThere = [&] { return (found = findTopLevel(process, predicate)) != nullptr; };
    if (!test::pumpUntil(isThere, kWaitMilliseconds)) {
        const std::string instead = messageBoxText(process);
        throw std::runtime_error(what + " did not come up." +
                                 (instead.empty() ? "" : " Instead: " + instead));
    }
    return found;
}

void waitUntilGone(HWND window, const std::string& what)
{
    if (!test::pumpUntil([window] { return !IsWindow(window); }, kWaitMilliseconds)) {
        throw std::runtime_error(what + " did not go away.");
    }
}

std::wstring AppCombo::entry(int index) const
{
    const auto position = static_cast<WPARAM>(index);
    const LRESULT length = ask(m_window, CB_GETLBTEXTLEN, position, 0);
    if (index < 0 || length <= 0) {
        return {};
    }
    std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1);
    ask(m_window, CB_GETLBTEXT, position, reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

int AppCombo::find(const std::wstring& text) const
{
    const int count = static_cast<int>(ask(m_window, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        if (entry(i) == text) {
            return i;
        }
    }
    return -1;
}

std::wstring AppCombo::chosen() const
{
    return entry(static_cast<int>(ask(m_window, CB_GETCURSEL, 0, 0)));
}

void AppCombo::choose(int index) const
{
    test::sendClick(m_window);
    test::pumpUntil([this] { return ask(m_window, CB_GETDROPPEDSTATE, 0, 0) != 0; });
    test::sendKey(VK_HOME);
    for (int i = 0; i < index; ++i) {
        test::sendKey(VK_DOWN);
    }
    test::sendKey(VK_RETURN);
    test::pumpUntil([this] { return ask(m_window, CB_GETDROPPEDSTATE, 0, 0) == 0; });
}

} // namespace o7::inapp
