#pragma once

#include <windows.h>

#include <new>
#include <string>

namespace o7 {

/// The driver's own modules by file name.
inline constexpr wchar_t kUtilModule[] = L"o7utilQK.dll";
inline constexpr wchar_t kCoreModule[] = L"o7coreQK.dll";
inline constexpr wchar_t kComsModule[] = L"o7comsQK.dll";
inline constexpr wchar_t kGuiModule[] = L"o7guiQK.dll";
inline constexpr wchar_t kPluginModule[] = L"o7plimQK.dll";

/// Folder (without a separator at its end) of the module that contains this code: the loader is a
/// static library, so that is the module that links it. Empty when the system refuses the answer.
std::wstring folderOfThisModule();

/// Loads one of the driver's own modules when it is first needed. The module is taken by its full
/// path from the folder of the module that contains this code, together with what it imports:
/// neither the folder of the host program nor its working directory is ever searched. Not for
/// system libraries.
///
/// A module once loaded stays until the process ends. To unload and load it again for every use
/// would be slow, and would leak where the language runtime keeps something for each thread that
/// used a module. So a loader is best a constant of its module; it needs no destruction.
class DllDelayLoader
{
public:
    /// Loads nothing yet. `fileName` is a bare file name and is borrowed.
    explicit constexpr DllDelayLoader(const wchar_t* fileName) noexcept : m_fileName(fileName) {}
    DllDelayLoader(const DllDelayLoader&) = delete;
    DllDelayLoader& operator=(const DllDelayLoader&) = delete;

    /// Loads the module at the first call, and tries again at a later one when that failed. Any
    /// thread.
    /// @return null when it cannot be loaded; the reason is the thread's last error.
    HMODULE load() noexcept;

    /// The same, for modules that link the utility module.
    /// @throws ExceptionDelayLoadDllLoadFailure naming file and error number.
    HMODULE loadOrThrow();

    /// The exported function as a pointer of type Function; null, with the thread's last error,
    /// when the module or the function is not there.
    template <class Function> Function function(const char* name) noexcept
    {
        return reinterpret_cast<Function>(address(name));
    }

private:
    using AnyFunction = void (*)();
    AnyFunction address(const char* name) noexcept;

    const wchar_t* m_fileName;
    SRWLOCK m_lock = SRWLOCK_INIT;
    HMODULE m_module = nullptr;
};

} // namespace o7
