#include "operatingsystem.h"

#include <windows.h>

bool OperatingSystem::IsUiThemeEnabled() noexcept
{
    using Question = BOOL(WINAPI*)();
    const SystemLibrary themes = LoadSystemLibrary(L"uxtheme.dll");
    const auto isActive = themes.function<Question>("IsThemeActive");
    const auto appliesHere = themes.function<Question>("IsAppThemed");
    return isActive != nullptr && appliesHere != nullptr && isActive() != FALSE &&
           appliesHere() != FALSE;
}

CXString OperatingSystem::SystemDirectory()
{
    CXString directory;
    const UINT room = GetSystemDirectoryW(nullptr, 0); // with the terminator
    wchar_t* const buffer = directory.GetBuffer(static_cast<int>(room));
    const UINT length = GetSystemDirectoryW(buffer, room);
    directory.ReleaseBuffer(length < room ? static_cast<int>(length) : 0);
    return directory;
}

SystemLibrary OperatingSystem::LoadSystemLibrary(const wchar_t* fileName) noexcept
{
    return SystemLibrary(fileName);
}

SystemLibrary OperatingSystem::LoadSystemLibrary(const CXString& fileName) noexcept
{
    return SystemLibrary(fileName);
}
