#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace o7::test {

/// Walks through a modal dialog or property sheet from inside its own message loop: each time the
/// thread's queue has run empty (everything asked for is painted), the next step runs. Steps are
/// where a test clicks, looks and presses buttons, and where a measurement reads its clock.
///
/// A step answers true when it is done; false asks to be called again at the next empty queue, for
/// what takes its time (real input, a box that opens). A step that is not done within its time
/// fails: the driver then closes every dialog of the thread, so that the modal call returns.
///
/// Use it on the thread that makes the modal call; one at a time.
class IdleDriver
{
public:
    /// Gets the top-level dialog or sheet that is active now (null while there is none).
    using Step = std::function<bool(HWND dialog)>;

    explicit IdleDriver(std::vector<Step> steps, int millisecondsPerStep = 5000);
    ~IdleDriver();
    IdleDriver(const IdleDriver&) = delete;
    IdleDriver& operator=(const IdleDriver&) = delete;

    /// Empty when every step was done; otherwise which one was not.
    std::string failure() const;

    /// The visible, enabled dialog-class window of this thread on top; null when there is none.
    static HWND activeDialog();

private:
    static LRESULT CALLBACK hookProcedure(int code, WPARAM wParam, LPARAM lParam);
    void queueRanEmpty();
    void giveUp();

    std::vector<Step> steps_;
    std::size_t next_ = 0;
    bool failed_ = false;
    bool inside_ = false;
    DWORD stepTime_;
    DWORD deadline_ = 0;
    HHOOK hook_ = nullptr;
    UINT_PTR timer_ = 0;
};

} // namespace o7::test
