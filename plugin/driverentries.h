#pragma once

#include <windows.h>

#include <compstui.h>

/// The entries that a printer driver's user-interface module has to have. The module that the print
/// system loads (`o7plugQK.dll`) hands each call on to the function of the same name in the module
/// that does the work (`o7plimQK.dll`); see docs/driver-plugin.md for why there are two.
/// All of them are called by the print system on the thread of the application.

#define O7_DRIVER_ENTRY extern "C" __declspec(dllexport)

namespace o7 {
class PrinterStandIn;
}

O7_DRIVER_ENTRY LONG WINAPI DrvDocumentPropertySheets(PPROPSHEETUI_INFO info,
                                                      LPARAM parameter) noexcept;
O7_DRIVER_ENTRY LONG WINAPI DrvDevicePropertySheets(PPROPSHEETUI_INFO info,
                                                    LPARAM parameter) noexcept;
O7_DRIVER_ENTRY DWORD WINAPI DrvDeviceCapabilities(HANDLE printer, PWSTR deviceName,
                                                   WORD capability, PVOID output,
                                                   PDEVMODEW devMode) noexcept;
O7_DRIVER_ENTRY BOOL WINAPI DrvConvertDevMode(LPCWSTR printerName, PDEVMODEW in, PDEVMODEW out,
                                              PDWORD size, DWORD mode) noexcept;

/// Of the working module alone, and not for the print system: see PrinterStandIn.
O7_DRIVER_ENTRY void O7SetPrinterStandIn(o7::PrinterStandIn* standIn) noexcept;
