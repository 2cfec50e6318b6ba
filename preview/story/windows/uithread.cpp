#include "uithread.h"

#include <objbase.h>

#include <utility>

#include "stepfailure.h"

namespace o7::story {
namespace {

constexpr wchar_t kClassName[] = L"O7StoryThread";
constexpr UINT kCall = WM_APP + 1;
constexpr UINT kReportIdle = WM_APP + 2;
constexpr UINT kTickMilliseconds = 10;
/// A timer's message comes only when nothing else is waiting. Some windows then post themselves
/// something, so it takes two of them.
constexpr int kIdleTicks = 2;
constexpr UINT kCallMilliseconds = 5000;
constexpr DWORD kEndMilliseconds = 3000;

class Handle
{
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() { CloseHandle(m_handle); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

struct Call
{
    const std::function<void()>* function = nullptr;
    std::exception_ptr thrown;
    std::atomic<bool> abandoned = false;
};

bool queueIsEmpty()
{
    return HIWORD(GetQueueStatus(QS_ALLINPUT & ~QS_TIMER)) == 0;
}

} // namespace

struct UiThread::State
{
    std::function<void()> body;
    Handle ready{CreateEventW(nullptr, TRUE, FALSE, nullptr)}; ///< the window is there
    Handle idle{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    std::exception_ptr thrown;
    HANDLE thread = nullptr;
    DWORD id = 0;
    HWND window = nullptr;
    int ticks = 0; ///< on the thread only

    ~State() { CloseHandle(thread); }

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);
    static DWORD WINAPI run(void* parameter);
    void tick();
    void work();
};

LRESULT CALLBACK UiThread::State::procedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
    auto* const state = reinterpret_cast<State*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    switch (message) {
    case kCall: {
        auto& call = *reinterpret_cast<Call*>(second);
        if (call.abandoned) {
            return 0;
        }
        try {
            (*call.function)();
        } catch (...) {
            call.thrown = std::current_exception();
        }
        return 1;
    }
    case kReportIdle:
        state->ticks = 0;
        SetTimer(window, 1, kTickMilliseconds, nullptr);
        return 1;
    case WM_TIMER:
        state->tick();
        return 0;
    default:
        return DefWindowProcW(window, message, first, second);
    }
}

void UiThread::State::tick()
{
    ticks = queueIsEmpty() ? ticks + 1 : 0;
    if (ticks == kIdleTicks) {
        KillTimer(window, 1);
        SetEvent(idle.get());
    }
}

void UiThread::State::work()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClassName;
    RegisterClassW(&windowClass); // the second time it is there already
    window = CreateWindowExW(0, kClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                             windowClass.hInstance, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetEvent(ready.get());
    const bool entered = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    try {
        body();
    } catch (...) {
        thrown = std::current_exception();
    }
    body = nullptr; // what it holds belongs to this thread
    DestroyWindow(window);
    if (entered) {
        CoUninitialize();
    }
}

DWORD WINAPI UiThread::State::run(void* parameter)
{
    const std::unique_ptr<std::shared_ptr<State>> state(
        static_cast<std::shared_ptr<State>*>(parameter));
    (*state)->work();
    return 0;
}

UiThread::UiThread(std::function<void()> body) : m_state(std::make_shared<State>())
{
    m_state->body = std::move(body);
    auto own = std::make_unique<std::shared_ptr<State>>(m_state);
    m_state->thread = CreateThread(nullptr, 0, State::run, own.get(), 0, &m_state->id);
    if (m_state->thread == nullptr) {
        throw StepFailure("No thread can be started for the window.");
    }
    static_cast<void>(own.release()); // the thread's
    WaitForSingleObject(m_state->ready.get(), INFINITE);
}

UiThread::~UiThread()
{
    WaitForSingleObject(m_state->thread, kEndMilliseconds);
}

DWORD UiThread::id() const
{
    return m_state->id;
}

bool UiThread::ended() const
{
    return waitForEnd(std::chrono::milliseconds(0));
}

bool UiThread::waitForEnd(std::chrono::milliseconds limit) const
{
    return WaitForSingleObject(m_state->thread, static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
}

void UiThread::rethrow() const
{
    if (ended() && m_state->thrown) {
        std::rethrow_exception(m_state->thrown);
    }
}

bool UiThread::waitUntilIdle(std::chrono::milliseconds limit) const
{
    ResetEvent(m_state->idle.get());
    PostMessageW(m_state->window, kReportIdle, 0, 0); // behind what is in the queue already
    const HANDLE handles[] = {m_state->idle.get(), m_state->thread};
    return WaitForMultipleObjects(2, handles, FALSE, static_cast<DWORD>(limit.count())) !=
           WAIT_TIMEOUT;
}

void UiThread::call(const std::function<void()>& function) const
{
    auto call = std::make_unique<Call>();
    call->function = &function;
    DWORD_PTR result = 0;
    if (SendMessageTimeoutW(m_state->window, kCall, 0, reinterpret_cast<LPARAM>(call.get()),
                            SMTO_NORMAL, kCallMilliseconds, &result) == 0 ||
        result == 0) {
        // Should the thread come back to life, it finds this.
        call.release()->abandoned = true;
        throw StepFailure(ended() ? "The window is closed."
                                  : "The program hangs: its thread does not answer.");
    }
    if (call->thrown) {
        std::rethrow_exception(call->thrown);
    }
}

} // namespace o7::story
