#include "systemlibrary.h"

#include <cwchar>
#include <utility>

#include <windows.h>

SystemLibrary::SystemLibrary(const wchar_t* fileName) noexcept
{
    const bool bareName =
        fileName != nullptr && *fileName != L'\0' && std::wcspbrk(fileName, L"\\/:") == nullptr;
    if (bareName) {
        m_module = LoadLibraryExW(fileName, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    }
}

SystemLibrary::~SystemLibrary()
{
    if (m_module != nullptr) {
        FreeLibrary(m_module);
    }
}

SystemLibrary::SystemLibrary(SystemLibrary&& other) noexcept
    : m_module(std::exchange(other.m_module, nullptr))
{
}

SystemLibrary& SystemLibrary::operator=(SystemLibrary&& other) noexcept
{
    std::swap(m_module, other.m_module);
    return *this;
}

SystemLibrary::AnyFunction SystemLibrary::address(const char* name) const noexcept
{
    return m_module == nullptr ? nullptr
                               : reinterpret_cast<AnyFunction>(GetProcAddress(m_module, name));
}
