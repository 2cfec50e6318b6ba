#pragma once

#include "uihandles.h"

#include <windows.h>

namespace o7 {

/// While it lives, a message box that this thread opens for an owner comes up centred over it,
/// within the work area of its screen; the system would put it in the middle of the screen. Where
/// the hook for it cannot be set the box stands where the system puts it.
class BoxPlacement
{
public:
    /// @param owner  the top-level window that the box is for; null leaves the box alone
    explicit BoxPlacement(HWND owner);
    ~BoxPlacement();
    BoxPlacement(const BoxPlacement&) = delete;
    BoxPlacement& operator=(const BoxPlacement&) = delete;

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam) noexcept;
    static BoxPlacement* ofThisThread() noexcept;
    void place(HWND box) noexcept;

    // All that live, the latest first: the hook is given nothing by which to find its object.
    static BoxPlacement* s_first;
    static SRWLOCK s_lock;

    HWND m_owner;
    DWORD m_thread;
    BoxPlacement* m_next = nullptr;
    UniqueHook m_hook;
};

} // namespace o7
