#include "devmodescan.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <span>
#include <stdexcept>
#include <vector>

#include "documentsettings.h"

namespace o7::inapp {
namespace {

class Process
{
public:
    explicit Process(DWORD id)
        : m_process(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id))
    {
        if (m_process == nullptr) {
            throw std::runtime_error("The program's memory cannot be read (error " +
                                     std::to_string(GetLastError()) + ").");
        }
    }
    ~Process() { CloseHandle(m_process); }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Hands out every readable and writable region, until one satisfies the visitor.
    bool anyRegion(const std::function<bool(std::span<const std::uint8_t>)>& visit) const
    {
        std::vector<std::uint8_t> bytes;
        MEMORY_BASIC_INFORMATION region{};
        const std::uint8_t* at = nullptr;
        while (VirtualQueryEx(m_process, at, &region, sizeof region) == sizeof region) {
            at = static_cast<const std::uint8_t*>(region.BaseAddress) + region.RegionSize;
            if (region.State != MEM_COMMIT || region.Type != MEM_PRIVATE ||
                region.Protect != PAGE_READWRITE) {
                continue;
            }
            bytes.resize(region.RegionSize);
            SIZE_T read = 0;
            ReadProcessMemory(m_process, region.BaseAddress, bytes.data(), bytes.size(), &read);
            if (visit(std::span(bytes).first(read))) {
                return true;
            }
        }
        return false;
    }

private:
    HANDLE m_process;
};

} // namespace

bool holdsDevMode(DWORD process, const std::wstring& printer,
                  bool (*wanted)(const PublicFields& fields))
{
    std::vector<std::uint8_t> name = CXString(printer).ToUtf16Le();
    name.resize(std::min(name.size(), 2 * (kNameLength - 1)) + 2, 0);
    const auto isWanted = [&](std::span<const std::uint8_t> bytes) {
        const auto parts = readDevMode(bytes);
        return parts && !readPrivatePart(parts->privatePart).empty() && wanted(parts->fields);
    };
    return Process(process).anyRegion([&](std::span<const std::uint8_t> region) {
        auto rest = region;
        for (;;) {
            const auto found = std::ranges::search(rest, name);
            if (found.empty()) {
                return false;
            }
            rest = rest.subspan(static_cast<std::size_t>(found.begin() - rest.begin()));
            if (isWanted(rest.first(std::min(rest.size(), kDevModeSize)))) {
                return true;
            }
            rest = rest.subspan(1);
        }
    });
}

} // namespace o7::inapp
