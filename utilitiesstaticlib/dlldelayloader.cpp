#include "dlldelayloader.h"

#include <exception>

namespace o7 {
namespace {

/// Any address inside this code tells the system which module is meant.
HMODULE thisModule() noexcept
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&thisModule), &module);
    return module;
}

HMODULE loadFromOwnFolder(const wchar_t* fileName) noexcept
{
    try {
        const std::wstring folder = folderOfThisModule();
        if (folder.empty()) {
            return nullptr;
        }
        // What the module imports is looked for beside it and in the system directory only.
        return LoadLibraryExW((folder + L'\\' + fileName).c_str(), nullptr,
                              LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    } catch (const std::exception&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
}

} // namespace

std::wstring folderOfThisModule()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(thisModule(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            break;
        }
        // A full buffer means a cut-off path.
        path.resize(path.size() * 2);
    }
    const auto separator = path.find_last_of(L"\\/");
    path.resize(separator == std::wstring::npos ? 0 : separator);
    return path;
}

HMODULE DllDelayLoader::load() noexcept
{
    AcquireSRWLockExclusive(&m_lock);
    if (m_module == nullptr) {
        m_module = loadFromOwnFolder(m_fileName);
    }
    HMODULE module = m_module;
    ReleaseSRWLockExclusive(&m_lock);
    return module;
}

DllDelayLoader::AnyFunction DllDelayLoader::address(const char* name) noexcept
{
    HMODULE module = load();
    return module == nullptr ? nullptr
                             : reinterpret_cast<AnyFunction>(GetProcAddress(module, name));
}

} // namespace o7
