#include "idledriver.h"

namespace o7::test {

namespace {

IdleDriver* s_driver = nullptr;
// Registered nowhere else, so that it reaches no window's own handling.
constexpr UINT kMarker = WM_APP + 0x3A7;
constexpr UINT kWakeMilliseconds = 10;

bool queueIsEmpty()
{
    return HIWORD(GetQueueStatus(QS_ALLINPUT & ~QS_TIMER)) == 0;
}

BOOL CALLBACK takeDialog(HWND window, LPARAM found)
{
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    if (wcscmp(name, L"#32770") != 0 || !IsWindowVisible(window) || !IsWindowEnabled(window))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE; // windows come from the top downwards
}

BOOL CALLBACK closeDialog(HWND window, LPARAM)
{
    PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}

} // namespace

IdleDriver::IdleDriver(std::vector<Step> steps, int millisecondsPerStep)
    : steps_(std::move(steps)), stepTime_(static_cast<DWORD>(millisecondsPerStep))
{
    s_driver = this;
    hook_ =
        SetWindowsHookExW(WH_GETMESSAGE, &IdleDriver::hookProcedure, nullptr, GetCurrentThreadId());
    timer_ = SetTimer(nullptr, 0, kWakeMilliseconds, nullptr);
    PostThreadMessageW(GetCurrentThreadId(), kMarker, 0, 0);
}

IdleDriver::~IdleDriver()
{
    KillTimer(nullptr, timer_);
    UnhookWindowsHookEx(hook_);
    s_driver = nullptr;
}

std::string IdleDriver::failure() const
{
    if (!failed_ && next_ == steps_.size())
        return {};
    return "step " + std::to_string(next_ + 1) + " of " + std::to_string(steps_.size()) +
           (failed_ ? " was not done in its time" : " was never reached");
}

HWND IdleDriver::activeDialog()
{
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &takeDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

// A message that is taken out while nothing else waits may be the last one, but it is yet to be
// dealt with. A marker posted behind it arrives when it has been; if the queue is still empty then,
// the thread has nothing left to do.
LRESULT CALLBACK IdleDriver::hookProcedure(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && wParam == PM_REMOVE && s_driver && !s_driver->inside_) {
        const MSG& message = *reinterpret_cast<const MSG*>(lParam);
        if (queueIsEmpty()) {
            if (message.message == kMarker || message.message == WM_TIMER)
                s_driver->queueRanEmpty();
            else
                PostThreadMessageW(GetCurrentThreadId(), kMarker, 0, 0);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void IdleDriver::queueRanEmpty()
{
    if (inside_ || failed_ || next_ == steps_.size())
        return;
    if (deadline_ == 0)
        deadline_ = GetTickCount() + stepTime_;
    // A step may pump messages itself until none come; ours must not keep it waiting.
    inside_ = true;
    KillTimer(nullptr, timer_);
    const bool done = steps_[next_](activeDialog());
    timer_ = SetTimer(nullptr, 0, kWakeMilliseconds, nullptr);
    inside_ = false;
    if (done) {
        ++next_;
        deadline_ = 0;
        PostThreadMessageW(GetCurrentThreadId(), kMarker, 0, 0);
    } else if (static_cast<int>(GetTickCount() - deadline_) > 0) {
        giveUp();
    }
}

void IdleDriver::giveUp()
{
    failed_ = true;
    EnumThreadWindows(GetCurrentThreadId(), &closeDialog, 0);
}

} // namespace o7::test
