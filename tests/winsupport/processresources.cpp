#include "processresources.h"

#include <tlhelp32.h>
#include <winternl.h>

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace o7::test {
namespace {

// --- windows ---

std::wstring describe(HWND window)
{
    std::array<wchar_t, 128> text{};
    GetClassNameW(window, text.data(), static_cast<int>(text.size()));
    std::wstring what = L"window '" + std::wstring(text.data()) + L"' ";
    // Not GetWindowText: of a window of another thread that is busy it may wait.
    InternalGetWindowText(window, text.data(), static_cast<int>(text.size()));
    return what + L"\"" + text.data() + L"\"";
}

bool isOurs(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

// The system gives a thread input-method windows with its first window, and takes them back as it
// likes: not ours.
bool isInputMethod(HWND window)
{
    std::array<wchar_t, 16> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data() == std::wstring_view(L"IME") ||
           name.data() == std::wstring_view(L"MSCTFIME UI");
}

void add(ProcessResources::Items& items, HWND window)
{
    if (isInputMethod(window))
        return;
    items.push_back({reinterpret_cast<ULONG_PTR>(window), describe(window)});
}

BOOL CALLBACK addChild(HWND window, LPARAM items)
{
    // Children of a foreign process inside ours are not our windows.
    if (isOurs(window))
        add(*reinterpret_cast<ProcessResources::Items*>(items), window);
    return TRUE;
}

void addWithChildren(ProcessResources::Items& items, HWND window)
{
    add(items, window);
    EnumChildWindows(window, addChild, reinterpret_cast<LPARAM>(&items));
}

BOOL CALLBACK addTopLevel(HWND window, LPARAM items)
{
    if (isOurs(window))
        addWithChildren(*reinterpret_cast<ProcessResources::Items*>(items), window);
    return TRUE;
}

// --- what only the native interface tells ---

template <class Function> Function procedure(const wchar_t* module, const char* name)
{
    // Through void*: the compiler rightly distrusts a direct change of the function type.
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(module), name)));
}

using QuerySystemInformation = LONG(WINAPI*)(int, void*, ULONG, ULONG*);
using QueryInformationProcess = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);

const std::byte* processEnvironmentBlock()
{
    const auto query =
        procedure<QueryInformationProcess>(L"ntdll.dll", "NtQueryInformationProcess");
    PROCESS_BASIC_INFORMATION basic{};
    query(GetCurrentProcess(), ProcessBasicInformation, &basic, sizeof basic, nullptr);
    return reinterpret_cast<const std::byte*>(basic.PebBaseAddress);
}

// --- GDI objects ---

// One row of the table that the kernel shows to every GUI process.
struct GdiEntry
{
    unsigned long long object;
    unsigned short process; // lowest bit: locked
    unsigned short count;
    unsigned short unique; // upper word of the handle
    unsigned short type;
    unsigned long long user;
};
static_assert(sizeof(GdiEntry) == 24);
constexpr std::size_t gdiTableRows = 0x10000;
constexpr std::size_t gdiTableInPeb = 0xF8;
constexpr unsigned stockBit = 0x80;

const wchar_t* gdiTypeName(unsigned unique)
{
    constexpr std::pair<unsigned, const wchar_t*> kTypes[] = {
        {0x01, L"device context"}, {0x04, L"region"},  {0x05, L"bitmap"},
        {0x09, L"bitmap"},         {0x08, L"palette"}, {0x0a, L"font"},
        {0x10, L"brush"},          {0x30, L"pen"},     {0x50, L"pen"}};
    for (const auto& [type, name] : kTypes) {
        if (type == (unique & 0x7f))
            return name;
    }
    return L"other GDI object";
}

bool underWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

// --- kernel handles ---

struct HandleEntry
{
    void* object;
    ULONG_PTR process;
    ULONG_PTR handle;
    ULONG access;
    USHORT creator;
    USHORT typeIndex;
    ULONG attributes;
    ULONG reserved;
};

struct HandleTable
{
    ULONG_PTR count;
    ULONG_PTR reserved;
    HandleEntry entries[1];
};

constexpr int systemExtendedHandleInformation = 64;

} // namespace

ProcessResources::Items windowsOfThisProcess()
{
    ProcessResources::Items items;
    EnumWindows(addTopLevel, reinterpret_cast<LPARAM>(&items));
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
        if (isOurs(window))
            addWithChildren(items, window);
    }
    return items;
}

ProcessResources::Items gdiObjectsOfThisProcess()
{
    ProcessResources::Items items;
    const auto* table =
        *reinterpret_cast<const GdiEntry* const*>(processEnvironmentBlock() + gdiTableInPeb);
    if (table == nullptr)
        return items;
    // Wine keeps one table for each process and leaves the owner empty.
    const bool ownTable = underWine();
    const auto own = static_cast<unsigned short>(GetCurrentProcessId() & 0xfffcU);
    for (std::size_t row = 0; row < gdiTableRows; ++row) {
        const GdiEntry& entry = table[row];
        const bool ours =
            ownTable ? (entry.unique & stockBit) == 0 : (entry.process & 0xfffeU) == own;
        if ((entry.type & 0x7f) != 0 && entry.object != 0 && ours) {
            const unsigned long long handle = row | (static_cast<unsigned>(entry.unique) << 16);
            items.push_back({handle, gdiTypeName(entry.unique)});
        }
    }
    return items;
}

ProcessResources::Items kernelHandlesOfThisProcess()
{
    ProcessResources::Items items;
    const auto query = procedure<QuerySystemInformation>(L"ntdll.dll", "NtQuerySystemInformation");
    std::vector<std::byte> buffer(1 << 16);
    ULONG needed = 0;
    constexpr LONG lengthMismatch = static_cast<LONG>(0xC0000004);
    LONG status = query(systemExtendedHandleInformation, buffer.data(),
                        static_cast<ULONG>(buffer.size()), &needed);
    // The table grows while it is being asked for: leave room, and ask again.
    for (int attempt = 0; status == lengthMismatch && attempt < 8; ++attempt) {
        buffer.resize(buffer.size() * 2 > needed ? buffer.size() * 2 : needed + 4096);
        status = query(systemExtendedHandleInformation, buffer.data(),
                       static_cast<ULONG>(buffer.size()), &needed);
    }
    if (status < 0)
        return items;
    const auto* table = reinterpret_cast<const HandleTable*>(buffer.data());
    for (ULONG_PTR i = 0; i < table->count; ++i) {
        const HandleEntry& entry = table->entries[i];
        if (entry.process == GetCurrentProcessId())
            items.push_back(
                {entry.handle, L"kernel handle of type " + std::to_wstring(entry.typeIndex)});
    }
    return items;
}

ProcessResources::Items threadsOfThisProcess()
{
    ProcessResources::Items items;
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Thread32First(snapshot, &entry); more != FALSE;
         more = Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == GetCurrentProcessId())
            items.push_back({entry.th32ThreadID, L"thread"});
    }
    CloseHandle(snapshot);
    return items;
}

ProcessResources ProcessResources::now()
{
    ProcessResources held;
    // Handles first: the other readings open some for themselves and close them again.
    held.kernelHandles = kernelHandlesOfThisProcess();
    held.windows = windowsOfThisProcess();
    held.gdiObjects = gdiObjectsOfThisProcess();
    held.threads = threadsOfThisProcess();
    return held;
}

} // namespace o7::test
