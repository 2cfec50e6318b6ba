#include "personinput.h"

#include <stdexcept>
#include <vector>

namespace o7::input {
namespace {

/// Keys of the block beside the letters. Without the mark they are those of the number pad, which
/// do something else with Shift.
constexpr WORD kExtendedKeys[] = {VK_HOME, VK_END,  VK_PRIOR, VK_NEXT,   VK_UP,
                                  VK_DOWN, VK_LEFT, VK_RIGHT, VK_INSERT, VK_DELETE};

bool isExtended(WORD key)
{
    for (const WORD extended : kExtendedKeys) {
        if (extended == key) {
            return true;
        }
    }
    return false;
}

INPUT keyInput(WORD key, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags | (isExtended(key) ? DWORD{KEYEVENTF_EXTENDEDKEY} : 0U);
    return input;
}

INPUT letterInput(wchar_t letter, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = static_cast<WORD>(letter);
    input.ki.dwFlags = flags | KEYEVENTF_UNICODE;
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
    if (inputs.empty()) {
        return;
    }
    const auto count = static_cast<UINT>(inputs.size());
    if (SendInput(count, inputs.data(), sizeof(INPUT)) != count) {
        throw std::runtime_error("The system takes no input (error " +
                                 std::to_string(GetLastError()) + ").");
    }
}

} // namespace

void click(POINT place)
{
    SetCursorPos(place.x, place.y);
    send({buttonInput(MOUSEEVENTF_LEFTDOWN), buttonInput(MOUSEEVENTF_LEFTUP)});
}

POINT middleOf(HWND window)
{
    RECT area{};
    GetWindowRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

void mouse(DWORD event, LONG right, int wheel)
{
    INPUT input = buttonInput(event);
    input.mi.dx = right;
    input.mi.mouseData = static_cast<DWORD>(wheel);
    send({input});
}

void key(WORD virtualKey, std::span<const WORD> held)
{
    std::vector<INPUT> inputs;
    for (const WORD holding : held) {
        inputs.push_back(keyInput(holding, 0));
    }
    inputs.push_back(keyInput(virtualKey, 0));
    inputs.push_back(keyInput(virtualKey, KEYEVENTF_KEYUP));
    for (const WORD holding : held) {
        inputs.push_back(keyInput(holding, KEYEVENTF_KEYUP));
    }
    send(std::move(inputs));
}

void text(std::wstring_view letters)
{
    std::vector<INPUT> inputs;
    for (const wchar_t letter : letters) {
        inputs.push_back(letterInput(letter, 0));
        inputs.push_back(letterInput(letter, KEYEVENTF_KEYUP));
    }
    send(std::move(inputs));
}

} // namespace o7::input
