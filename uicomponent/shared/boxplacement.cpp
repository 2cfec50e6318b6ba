#include "boxplacement.h"

#include <algorithm>

namespace o7 {

namespace {

/// The start of a length in the middle of two ends, but between two others, the first of which
/// counts more.
LONG centred(LONG length, LONG first, LONG last, LONG least, LONG most)
{
    const LONG start = first + (last - first - length) / 2;
    return std::max(least, std::min(start, most - length));
}

} // namespace

BoxPlacement* BoxPlacement::s_first = nullptr;
SRWLOCK BoxPlacement::s_lock = SRWLOCK_INIT;

BoxPlacement::BoxPlacement(HWND owner) : m_owner(owner), m_thread(::GetCurrentThreadId())
{
    if (owner == nullptr) {
        return;
    }
    ::AcquireSRWLockExclusive(&s_lock);
    m_next = s_first;
    s_first = this;
    ::ReleaseSRWLockExclusive(&s_lock);
    m_hook.reset(::SetWindowsHookExW(WH_CBT, &BoxPlacement::hook, nullptr, m_thread));
}

BoxPlacement::~BoxPlacement()
{
    m_hook.reset();
    ::AcquireSRWLockExclusive(&s_lock);
    for (BoxPlacement** link = &s_first; *link != nullptr; link = &(*link)->m_next) {
        if (*link == this) {
            *link = m_next;
            break;
        }
    }
    ::ReleaseSRWLockExclusive(&s_lock);
}

BoxPlacement* BoxPlacement::ofThisThread() noexcept
{
    ::AcquireSRWLockShared(&s_lock);
    BoxPlacement* found = s_first;
    while (found != nullptr && found->m_thread != ::GetCurrentThreadId()) {
        found = found->m_next;
    }
    ::ReleaseSRWLockShared(&s_lock);
    return found;
}

LRESULT CALLBACK BoxPlacement::hook(int code, WPARAM wParam, LPARAM lParam) noexcept
{
    const auto window = reinterpret_cast<HWND>(wParam);
    BoxPlacement* const placement = code == HCBT_ACTIVATE ? ofThisThread() : nullptr;
    // Its size is known by now, and nobody has seen it.
    if (placement != nullptr && placement->m_owner != nullptr &&
        ::GetWindow(window, GW_OWNER) == placement->m_owner) {
        placement->place(window);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void BoxPlacement::place(HWND box) noexcept
{
    m_owner = nullptr; // once: a person may move the box
    RECT over{};
    RECT size{};
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    HWND owner = ::GetWindow(box, GW_OWNER);
    if (::IsIconic(owner) != FALSE || ::GetWindowRect(owner, &over) == FALSE ||
        ::GetWindowRect(box, &size) == FALSE ||
        ::GetMonitorInfoW(::MonitorFromRect(&over, MONITOR_DEFAULTTONEAREST), &screen) == FALSE) {
        return;
    }
    const RECT& work = screen.rcWork;
    ::SetWindowPos(box, nullptr,
                   centred(size.right - size.left, over.left, over.right, work.left, work.right),
                   centred(size.bottom - size.top, over.top, over.bottom, work.top, work.bottom), 0,
                   0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace o7
