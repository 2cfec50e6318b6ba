#pragma once
// ThreadSlot: one pointer per thread, a separate one for each Tag. Written in the header alone:
// each module has slots of its own.
//
// On Windows a slot of the operating system and not thread_local: the module can be unloaded while
// threads of the host live on, and what the language runtime allocates for thread_local in each of
// them would stay behind. The last error of the thread is kept.

#if defined(_WIN32)
#include <windows.h>
#endif

namespace o7 {

#if defined(_WIN32)

class SystemThreadSlot
{
public:
    SystemThreadSlot() noexcept : m_index(TlsAlloc()) {}
    ~SystemThreadSlot()
    {
        if (m_index != TLS_OUT_OF_INDEXES) {
            TlsFree(m_index);
        }
    }
    SystemThreadSlot(const SystemThreadSlot&) = delete;
    SystemThreadSlot& operator=(const SystemThreadSlot&) = delete;

    void* get() const noexcept
    {
        if (m_index == TLS_OUT_OF_INDEXES) {
            return nullptr;
        }
        const DWORD lastError = GetLastError();
        void* const value = TlsGetValue(m_index);
        SetLastError(lastError);
        return value;
    }

    void set(void* value) const noexcept
    {
        if (m_index != TLS_OUT_OF_INDEXES) {
            TlsSetValue(m_index, value);
        }
    }

private:
    DWORD m_index;
};

#endif

template <class Tag> class ThreadSlot
{
public:
    /// Null in a thread that has set nothing, and always when the system had no slot left.
    static void* get() noexcept
    {
#if defined(_WIN32)
        return slot().get();
#else
        return value();
#endif
    }

    static void set(void* newValue) noexcept
    {
#if defined(_WIN32)
        slot().set(newValue);
#else
        value() = newValue;
#endif
    }

private:
#if defined(_WIN32)
    static const SystemThreadSlot& slot() noexcept
    {
        static const SystemThreadSlot shared;
        return shared;
    }
#else
    static void*& value() noexcept
    {
        thread_local void* own = nullptr;
        return own;
    }
#endif
};

} // namespace o7
