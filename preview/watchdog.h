#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace o7 {

/// Ends the process with exit code 1 and a sentence when a run that nobody watches takes too long:
/// a hang of the user-interface thread stops its timers too, so only another thread can tell.
class Watchdog
{
public:
    explicit Watchdog(std::chrono::seconds limit);
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog();

private:
    void watch(std::chrono::seconds limit) noexcept;

    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_ended = false;
    std::thread m_thread; // last: it uses the others
};

} // namespace o7
