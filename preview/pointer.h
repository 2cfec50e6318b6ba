#pragma once

#include <windows.h>

namespace o7 {

/// The mouse as a person's hand moves it, for pictures of what only shows under it.
class Pointer
{
public:
    /// Puts the pointer where it was, and lets a button go that is still held.
    Pointer();
    ~Pointer();
    Pointer(const Pointer&) = delete;
    Pointer& operator=(const Pointer&) = delete;

    /// To a place of the screen, in pixels.
    static void moveTo(POINT place);
    /// Out of the way, to a corner of the screen.
    static void park();
    void press();
    void release();

private:
    POINT m_before{};
    bool m_isPressed = false;
};

} // namespace o7
