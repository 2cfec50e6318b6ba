#include "othersmemory.h"

#include "stepfailure.h"

namespace o7::story {
namespace {

constexpr DWORD kRights = PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE;

} // namespace

OthersMemory::OthersMemory(HWND window, std::size_t size)
{
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    m_process = OpenProcess(kRights, FALSE, id);
    if (m_process != nullptr) {
        m_address =
            VirtualAllocEx(m_process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
    if (m_address == nullptr) {
        const DWORD error = GetLastError();
        if (m_process != nullptr) {
            CloseHandle(m_process);
        }
        throw StepFailure("The program's windows cannot be read (error " + std::to_string(error) +
                          ").");
    }
}

OthersMemory::~OthersMemory()
{
    VirtualFreeEx(m_process, m_address, 0, MEM_RELEASE);
    CloseHandle(m_process);
}

void OthersMemory::write(const void* from, std::size_t size, std::size_t offset) const
{
    WriteProcessMemory(m_process, static_cast<char*>(m_address) + offset, from, size, nullptr);
}

void OthersMemory::read(void* to, std::size_t size, std::size_t offset) const
{
    ReadProcessMemory(m_process, static_cast<char*>(m_address) + offset, to, size, nullptr);
}

} // namespace o7::story
