#pragma once
// OperatingSystem: questions to the system that several parts of the driver ask.

#include "cxstring.h"
#include "systemlibrary.h"
#include "utilapi.h"

class O7UTIL_API OperatingSystem
{
public:
    OperatingSystem() = delete;

    /// True when visual styles are on and apply to this program (IsThemeActive, IsAppThemed).
    static bool IsUiThemeEnabled() noexcept;
    /// The system directory, without a separator at its end (GetSystemDirectoryW).
    static CXString SystemDirectory();
    /// Loads a library of the system from the system directory and nowhere else; test the result.
    static SystemLibrary LoadSystemLibrary(const wchar_t* fileName) noexcept;
    static SystemLibrary LoadSystemLibrary(const CXString& fileName) noexcept;
};
