#include "uipagesource.h"

#include <utility>

namespace {

/// What is kept, on every thread of the process; a list, so that keeping allocates nothing.
struct Kept
{
    SRWLOCK lock = SRWLOCK_INIT;
    std::unique_ptr<UIPageSource> first;
};

Kept s_kept;

class KeptLock
{
public:
    KeptLock() noexcept { AcquireSRWLockExclusive(&s_kept.lock); }
    ~KeptLock() { ReleaseSRWLockExclusive(&s_kept.lock); }
    KeptLock(const KeptLock&) = delete;
    KeptLock& operator=(const KeptLock&) = delete;
};

} // namespace

void UIPageSource::keepFor(HWND sheet, std::unique_ptr<UIPageSource> source) noexcept
{
    if (!sheet || !IsWindow(sheet))
        return;
    source->record = {};
    source->m_sheet = sheet;
    const KeptLock lock;
    source->m_next = std::move(s_kept.first);
    s_kept.first = std::move(source);
}

void UIPageSource::freeUnused() noexcept
{
    const KeptLock lock;
    for (std::unique_ptr<UIPageSource>* at = &s_kept.first; *at;) {
        if (IsWindow((*at)->m_sheet))
            at = &(*at)->m_next;
        else
            *at = std::exchange((*at)->m_next, nullptr);
    }
}
