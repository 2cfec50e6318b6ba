#include "input.h"

#include <string>
#include <vector>

namespace o7::test {
namespace {

INPUT keyInput(WORD key, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

INPUT characterInput(wchar_t character, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = static_cast<WORD>(character);
    input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    return input;
}

INPUT buttonInput(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

void send(std::vector<INPUT> inputs)
{
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    pumpUntilQuiet();
}

struct Search
{
    std::wstring_view title;
    HWND found;
};

BOOL CALLBACK matchTitle(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId() || !IsWindowVisible(window))
        return TRUE;
    // InternalGetWindowText never waits for the thread of the window.
    std::wstring text(search.title.size() + 2, L'\0');
    const int length = InternalGetWindowText(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    if (text != search.title)
        return TRUE;
    search.found = window;
    return FALSE;
}

} // namespace

void pumpMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // Belongs to whoever runs the outer loop.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        HWND active = GetActiveWindow();
        if (active == nullptr || !IsDialogMessageW(active, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

bool pumpUntil(const std::function<bool()>& predicate, int milliseconds)
{
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    while (!predicate()) {
        if (GetTickCount64() >= end)
            return false;
        MsgWaitForMultipleObjectsEx(0, nullptr, 10, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        pumpMessages();
    }
    return true;
}

void pumpUntilQuiet(int milliseconds)
{
    // Timers come for ever where a button tracks the pointer over it or a caret blinks.
    constexpr DWORD kWithoutTimers = QS_ALLINPUT & ~QS_TIMER;
    pumpMessages();
    while (MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(milliseconds), kWithoutTimers,
                                       MWMO_INPUTAVAILABLE) == WAIT_OBJECT_0)
        pumpMessages();
}

void sendClick(int x, int y)
{
    SetCursorPos(x, y);
    send({buttonInput(MOUSEEVENTF_LEFTDOWN), buttonInput(MOUSEEVENTF_LEFTUP)});
}

void sendClick(HWND window)
{
    RECT area{};
    GetWindowRect(window, &area);
    sendClick((area.left + area.right) / 2, (area.top + area.bottom) / 2);
}

void sendKey(WORD virtualKey, std::initializer_list<WORD> held)
{
    std::vector<INPUT> inputs;
    for (const WORD key : held)
        inputs.push_back(keyInput(key, 0));
    inputs.push_back(keyInput(virtualKey, 0));
    inputs.push_back(keyInput(virtualKey, KEYEVENTF_KEYUP));
    for (const WORD key : held)
        inputs.push_back(keyInput(key, KEYEVENTF_KEYUP));
    send(std::move(inputs));
}

void typeText(std::wstring_view text)
{
    std::vector<INPUT> inputs;
    for (const wchar_t character : text) {
        inputs.push_back(characterInput(character, 0));
        inputs.push_back(characterInput(character, KEYEVENTF_KEYUP));
    }
    send(std::move(inputs));
}

HWND waitForWindow(std::wstring_view title, int milliseconds)
{
    Search search{title, nullptr};
    pumpUntil(
        [&search] {
            EnumWindows(matchTitle, reinterpret_cast<LPARAM>(&search));
            return search.found != nullptr;
        },
        milliseconds);
    return search.found;
}

} // namespace o7::test
