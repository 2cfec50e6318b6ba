// The module that the print system loads. It imports nothing but the system, hands every call on
// to the module that does the work, and holds that module only as long as it is needed.

#include "dlldelayloader.h"
#include "driverentries.h"

namespace {

/// The module that does the work, for the length of one call.
o7::DllDelayLoader workingModule() noexcept
{
    return o7::DllDelayLoader(o7::kPluginModule);
}

template <class Result, class... Arguments>
Result forward(o7::DllDelayLoader& module, const char* name, Result failure,
               Arguments... arguments) noexcept
{
    using Function = Result(WINAPI*)(Arguments...);
    const auto function = module.function<Function>(name);
    return function == nullptr ? failure : function(arguments...);
}

using SheetFunction = LONG(WINAPI*)(PPROPSHEETUI_INFO, LPARAM);

/// Between "init" and "destroy" the pages need the working module although no call is running: the
/// hold of the first call goes on with the sheet, and that of the last call ends both. The working
/// module keeps its sheet in the user data, which so tells when there is one.
LONG forwardSheet(const char* name, PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    auto module = workingModule();
    const bool before = info != nullptr && info->UserData != 0;
    const LONG result = forward<LONG>(module, name, -1, info, parameter);
    const bool after = info != nullptr && info->UserData != 0;
    if (!before && after) {
        module.keep();
    } else if (before && !after) {
        FreeLibrary(module.load());
    }
    return result;
}

} // namespace

LONG WINAPI DrvDocumentPropertySheets(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    return forwardSheet("DrvDocumentPropertySheets", info, parameter);
}

LONG WINAPI DrvDevicePropertySheets(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    return forwardSheet("DrvDevicePropertySheets", info, parameter);
}

DWORD WINAPI DrvDeviceCapabilities(HANDLE printer, PWSTR deviceName, WORD capability, PVOID output,
                                   PDEVMODEW devMode) noexcept
{
    auto module = workingModule();
    return forward<DWORD>(module, "DrvDeviceCapabilities", static_cast<DWORD>(-1), printer,
                          deviceName, capability, output, devMode);
}

BOOL WINAPI DrvConvertDevMode(LPCWSTR printerName, PDEVMODEW in, PDEVMODEW out, PDWORD size,
                              DWORD mode) noexcept
{
    auto module = workingModule();
    return forward<BOOL>(module, "DrvConvertDevMode", FALSE, printerName, in, out, size, mode);
}

/// Nothing to do when the printer is added, renamed or deleted: its data go with it.
extern "C" __declspec(dllexport) BOOL WINAPI DrvPrinterEvent(LPWSTR, INT, DWORD, LPARAM) noexcept
{
    return TRUE;
}
