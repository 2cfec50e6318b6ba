#pragma once

#include <windows.h>

#include <winspool.h>

#include <cstddef>
#include <vector>

namespace o7 {

/// A record of the print system together with the texts and buffers it points to, which lie behind
/// it in one piece of memory.
template <class Record> class PrintSystemRecord
{
public:
    PrintSystemRecord() = default;

    /// Asks twice: for the size, and for the record.
    /// @param ask  called with buffer, its size in bytes and where the needed size goes; answers
    ///             like the functions of the print system.
    template <class Ask> explicit PrintSystemRecord(Ask ask)
    {
        DWORD needed = 0;
        if (ask(nullptr, 0, &needed) || GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
            return;
        }
        m_memory.resize(needed / sizeof(std::max_align_t) + 1);
        if (!ask(reinterpret_cast<BYTE*>(m_memory.data()), needed, &needed)) {
            m_memory.clear();
        }
    }

    /// Null when the print system gave none.
    const Record* get() const
    {
        return m_memory.empty() ? nullptr : reinterpret_cast<const Record*>(m_memory.data());
    }

private:
    std::vector<std::max_align_t> m_memory;
};

} // namespace o7
