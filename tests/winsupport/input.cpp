#include "input.h"

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

void sendMouse(DWORD event, LONG right, int wheel)
{
    INPUT input = buttonInput(event);
    input.mi.dx = right;
    input.mi.mouseData = static_cast<DWORD>(wheel);
    send({input});
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

} // namespace o7::test
