#pragma once

#include <windows.h>

#include <cstddef>

namespace o7::story {

/// A piece of memory in the process that a window belongs to, for messages about controls of the
/// common-controls library: those carry addresses, which the system does not translate.
class OthersMemory
{
public:
    /// @throws StepFailure when the process does not let us.
    OthersMemory(HWND window, std::size_t size);
    ~OthersMemory();
    OthersMemory(const OthersMemory&) = delete;
    OthersMemory& operator=(const OthersMemory&) = delete;

    /// Its address over there.
    void* address() const { return m_address; }
    void write(const void* from, std::size_t size, std::size_t offset = 0) const;
    void read(void* to, std::size_t size, std::size_t offset = 0) const;

private:
    HANDLE m_process = nullptr;
    void* m_address = nullptr;
};

} // namespace o7::story
