#pragma once
// SystemLibrary: owner of a library of the operating system.
//
// Loaded from the system directory alone, so that a file of the same name beside the host program
// or in its working directory is never taken. Freed with the object.

#include "cxstring.h"
#include "utilapi.h"

struct HINSTANCE__;

class O7UTIL_API SystemLibrary
{
public:
    /// `fileName` is a bare name ("uxtheme.dll"); one with a path is refused. Allocates nothing.
    explicit SystemLibrary(const wchar_t* fileName) noexcept;
    explicit SystemLibrary(const CXString& fileName) noexcept : SystemLibrary(fileName.c_str()) {}
    ~SystemLibrary();
    SystemLibrary(SystemLibrary&& other) noexcept;
    SystemLibrary& operator=(SystemLibrary&& other) noexcept;
    SystemLibrary(const SystemLibrary&) = delete;
    SystemLibrary& operator=(const SystemLibrary&) = delete;

    explicit operator bool() const noexcept { return m_module != nullptr; }
    HINSTANCE__* get() const noexcept { return m_module; }

    /// The exported function as a pointer of type Function; null when the library or the function
    /// is not there.
    template <class Function> Function function(const char* name) const noexcept
    {
        return reinterpret_cast<Function>(address(name));
    }

private:
    using AnyFunction = void (*)();
    AnyFunction address(const char* name) const noexcept;

    HINSTANCE__* m_module = nullptr;
};
