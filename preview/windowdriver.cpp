#include "windowdriver.h"

#include <exception>
#include <utility>

#include "cxstring.h"

namespace o7 {
namespace {

constexpr UINT kTickMilliseconds = 15;
/// Some pages post themselves a message at their first paint and paint again.
constexpr int kTicksToSettle = 4;
/// After this many ticks without the wanted state the page or the window is given up.
constexpr int kTicksToGiveUp = 200;
constexpr int kTicksBetweenCancels = 20;

WindowDriver* s_driver = nullptr;

} // namespace

WindowDriver::WindowDriver(Work work)
    : m_work(std::move(work)), m_timer(SetTimer(nullptr, 0, kTickMilliseconds, onTimer))
{
    s_driver = this;
}

WindowDriver::~WindowDriver()
{
    KillTimer(nullptr, m_timer);
    s_driver = nullptr;
}

std::vector<std::wstring> WindowDriver::failures() const
{
    std::vector<std::wstring> result = m_failures;
    if (m_state == State::Seek) {
        result.emplace_back(L"No window was shown.");
    } else if (m_state == State::Settle) {
        result.emplace_back(L"The window went away before every page was seen.");
    }
    return result;
}

void CALLBACK WindowDriver::onTimer(HWND, UINT, UINT_PTR, DWORD) noexcept
{
    if (!s_driver) {
        return;
    }
    try {
        s_driver->step();
    } catch (const std::exception& error) {
        s_driver->fail(std::wstring(CXString(error.what()).View()));
    }
}

void WindowDriver::step()
{
    ++m_ticks;
    HWND other = ShownWindow::findOther(m_window.handle());
    if (other && (m_window.handle() || ShownWindow(other).isSheet() != m_work.wantsSheet)) {
        return closeUnexpected(other);
    }
    switch (m_state) {
    case State::Seek:
        return seek(other);
    case State::Settle:
        return settle();
    case State::Cancel:
        return cancel();
    case State::Done:
        return;
    }
}

void WindowDriver::seek(HWND window)
{
    if (window) {
        m_window = ShownWindow(window);
        m_work.onShown(m_window);
        m_window.selectPage(0);
        m_state = State::Settle;
        m_ticks = 0;
    }
}

void WindowDriver::settle()
{
    const bool shown = m_window.currentPage() == m_page && m_window.pageIsShown();
    if (shown && m_ticks >= kTicksToSettle) {
        visit();
    } else if (m_ticks >= kTicksToGiveUp) {
        fail(L"The page \"" + m_window.pageTitle(m_page) + L"\" was not shown.");
    }
}

void WindowDriver::visit()
{
    m_work.onPage(m_window, m_page + 1, m_window.pageTitle(m_page));
    ++m_pagesSeen;
    m_ticks = 0;
    if (++m_page < m_window.pageCount()) {
        m_window.selectPage(m_page);
        return;
    }
    m_work.onAllSeen();
    m_state = State::Cancel;
    cancel();
}

void WindowDriver::cancel()
{
    if (!m_window.isOpen()) {
        m_state = State::Done;
    } else if (m_ticks % kTicksBetweenCancels == 0) {
        m_window.cancel();
    }
}

/// A failure ends the visit: what follows would only hide it.
void WindowDriver::fail(std::wstring sentence)
{
    m_failures.push_back(std::move(sentence));
    m_state = State::Cancel;
    m_ticks = 0;
    m_window.cancel();
}

void WindowDriver::closeUnexpected(HWND window)
{
    if (window != m_unexpected) {
        m_unexpected = window;
        m_failures.push_back(L"A window came up that nobody asked for: " +
                             ShownWindow(window).description());
    }
    if (m_ticks % kTicksBetweenCancels == 0) {
        // A message box with OK alone answers to its close command only.
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        PostMessageW(window, WM_CLOSE, 0, 0);
    }
}

} // namespace o7
