#include "pointer.h"

namespace o7 {
namespace {

void sendButton(DWORD flag)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flag;
    SendInput(1, &input, sizeof input);
}

} // namespace

Pointer::Pointer()
{
    GetCursorPos(&m_before);
}

Pointer::~Pointer()
{
    release();
    moveTo(m_before);
}

void Pointer::moveTo(POINT place)
{
    SetCursorPos(place.x, place.y);
}

void Pointer::park()
{
    moveTo({0, 0});
}

void Pointer::press()
{
    sendButton(MOUSEEVENTF_LEFTDOWN);
    m_isPressed = true;
}

void Pointer::release()
{
    if (m_isPressed) {
        sendButton(MOUSEEVENTF_LEFTUP);
        m_isPressed = false;
    }
}

} // namespace o7
