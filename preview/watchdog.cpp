#include "watchdog.h"

#include <windows.h>

#include "console.h"

namespace o7 {

Watchdog::Watchdog(std::chrono::seconds limit) : m_thread([this, limit] { watch(limit); })
{
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_condition.notify_one();
    m_thread.join();
}

void Watchdog::watch(std::chrono::seconds limit) noexcept
{
    std::unique_lock lock(m_mutex);
    if (!m_condition.wait_for(lock, limit, [this] { return m_ended; })) {
        printError(L"o7preview: the window did not answer in time; given up.");
        TerminateProcess(GetCurrentProcess(), 1);
    }
}

} // namespace o7
