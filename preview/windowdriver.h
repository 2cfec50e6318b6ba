#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "shownwindow.h"

namespace o7 {

/// Visits a window that some modal call is about to open: waits until it is there, selects every
/// page, waits until the page is painted, does the work, presses Cancel. Runs from a timer of the
/// calling thread, as the modal loop belongs to somebody else; a timer message comes only when
/// nothing is left to paint. One driver at a time.
class WindowDriver
{
public:
    struct Work
    {
        bool wantsSheet = true; ///< false: a dialog without pages is expected
        /// Once, when the window has come up.
        std::function<void(const ShownWindow&)> onShown;
        /// Once for every page while it is shown; `number` counts from 1.
        std::function<void(const ShownWindow&, int number, const std::wstring& title)> onPage;
        /// Once, after the last page and before Cancel.
        std::function<void()> onAllSeen;
    };

    explicit WindowDriver(Work work);
    WindowDriver(const WindowDriver&) = delete;
    WindowDriver& operator=(const WindowDriver&) = delete;
    ~WindowDriver();

    /// What went wrong, one sentence each: a refused page, an unexpected message box, whatever the
    /// work threw, no window at all. Empty when every page was seen.
    std::vector<std::wstring> failures() const;
    int pagesSeen() const { return m_pagesSeen; }

private:
    enum class State
    {
        Seek,
        Settle,
        Cancel,
        Done,
    };

    static void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD) noexcept;
    void step();
    void seek(HWND window);
    void settle();
    void visit();
    void cancel();
    void fail(std::wstring sentence);
    void closeUnexpected(HWND window);

    Work m_work;
    UINT_PTR m_timer = 0;
    State m_state = State::Seek;
    ShownWindow m_window;
    HWND m_unexpected = nullptr; ///< the last one reported
    int m_page = 0;
    int m_pagesSeen = 0;
    int m_ticks = 0; ///< timer messages since the last change of state
    std::vector<std::wstring> m_failures;
};

} // namespace o7
