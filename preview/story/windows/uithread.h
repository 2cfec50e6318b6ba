#pragma once

#include <windows.h>

#include <atomic>
#include <chrono>
#include <exception>
#include <functional>
#include <memory>

namespace o7::story {

/// A thread of this process that shows windows, beside the thread that uses them: a sheet is modal,
/// so what opens it returns when it is closed. The body runs in a COM apartment of its own.
class UiThread
{
public:
    explicit UiThread(std::function<void()> body);
    /// Waits for a short while; a thread that hangs is left behind with its windows.
    ~UiThread();
    UiThread(const UiThread&) = delete;
    UiThread& operator=(const UiThread&) = delete;

    DWORD id() const;
    bool ended() const;
    /// Waits until the body has returned.
    /// @return false when it has not within the time.
    bool waitForEnd(std::chrono::milliseconds limit) const;
    /// Throws what the body has ended with, if it has ended with an exception.
    void rethrow() const;

    /// Waits until the thread has nothing left to do: input and posted messages are dealt with,
    /// everything is painted; or until it has ended.
    /// @return false when it has not come to rest within the time.
    bool waitUntilIdle(std::chrono::milliseconds limit) const;
    /// Runs a function on the thread, while that is in a message loop, and waits for it. What it
    /// throws comes out here.
    /// @throws StepFailure when the thread has ended or does not answer.
    void call(const std::function<void()>& function) const;

private:
    struct State;

    std::shared_ptr<State> m_state; ///< shared with the thread, which may stay longer
};

} // namespace o7::story
