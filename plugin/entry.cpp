// The module that the print system loads. It imports nothing but the system, and hands every call
// on to the module that does the work.

#include "dlldelayloader.h"
#include "driverentries.h"

namespace {

constinit o7::DllDelayLoader g_workingModule(o7::kPluginModule);

template <class Result, class... Arguments>
Result forward(const char* name, Result failure, Arguments... arguments) noexcept
{
    using Function = Result(WINAPI*)(Arguments...);
    const auto function = g_workingModule.function<Function>(name);
    return function == nullptr ? failure : function(arguments...);
}

} // namespace

LONG WINAPI DrvDocumentPropertySheets(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    return forward<LONG>("DrvDocumentPropertySheets", -1, info, parameter);
}

LONG WINAPI DrvDevicePropertySheets(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    return forward<LONG>("DrvDevicePropertySheets", -1, info, parameter);
}

DWORD WINAPI DrvDeviceCapabilities(HANDLE printer, PWSTR deviceName, WORD capability, PVOID output,
                                   PDEVMODEW devMode) noexcept
{
    return forward<DWORD>("DrvDeviceCapabilities", static_cast<DWORD>(-1), printer, deviceName,
                          capability, output, devMode);
}

BOOL WINAPI DrvConvertDevMode(LPCWSTR printerName, PDEVMODEW in, PDEVMODEW out, PDWORD size,
                              DWORD mode) noexcept
{
    return forward<BOOL>("DrvConvertDevMode", FALSE, printerName, in, out, size, mode);
}

/// Nothing to do when the printer is added, renamed or deleted: its data go with it.
extern "C" __declspec(dllexport) BOOL WINAPI DrvPrinterEvent(LPWSTR, INT, DWORD, LPARAM) noexcept
{
    return TRUE;
}

/// Nor when the driver is installed or removed.
extern "C" __declspec(dllexport) BOOL WINAPI DrvDriverEvent(DWORD, DWORD, LPBYTE, LPARAM) noexcept
{
    return TRUE;
}
