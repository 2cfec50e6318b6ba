#include "input.h"

#include "personinput.h"

namespace o7::test {

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
    input::click({x, y});
    pumpUntilQuiet();
}

void sendClick(HWND window)
{
    input::click(input::middleOf(window));
    pumpUntilQuiet();
}

void sendMouse(DWORD event, LONG right, int wheel)
{
    input::mouse(event, right, wheel);
    pumpUntilQuiet();
}

void sendKey(WORD virtualKey, std::initializer_list<WORD> held)
{
    input::key(virtualKey, {held.begin(), held.size()});
    pumpUntilQuiet();
}

void strikeKey(WORD virtualKey, std::initializer_list<WORD> held)
{
    input::key(virtualKey, {held.begin(), held.size()});
}

void strikeClick(HWND window)
{
    input::click(input::middleOf(window));
}

} // namespace o7::test
