#pragma once

#include <windows.h>

#include <compstui.h>

/// The part of the printer-driver interface that the toolchain's headers do not have. The records
/// are laid out by the print system; their fields keep its names.
namespace o7 {

/// What `DrvDocumentPropertySheets` gets: as `lParam` without a UI, as `lParamInit` with one.
struct DocumentPropertyHeader
{
    WORD cbSize;
    WORD Reserved;
    HANDLE hPrinter;       ///< may be null
    LPWSTR pszPrinterName; ///< may be null
    PDEVMODEW pdmIn;       ///< null: none given
    PDEVMODEW pdmOut;      ///< may be the very buffer of pdmIn
    DWORD cbOut; ///< out: the size needed. In: not to be believed, as the print system may put
                 ///< there whatever lies in the buffer's `dmSize`; the application owes the size
                 ///< that it was told.
    DWORD fMode; ///< DM_… bits
};

/// What `DrvDevicePropertySheets` gets as `lParamInit`.
struct DevicePropertyHeader
{
    WORD cbSize;
    WORD Flags;
    HANDLE hPrinter;
    LPWSTR pszPrinterName;
};

/// Flag of DevicePropertyHeader: the user may look but not change.
inline constexpr WORD kNoPermission = 0x0001;

/// Further bits of DocumentPropertyHeader::fMode.
inline constexpr DWORD kDocumentNoPermission = 0x0020; ///< the user may look but not change
inline constexpr DWORD kUserDefaults = 0x0040; ///< the settings that new documents start with

/// Reasons that the headers do not have (`PROPSHEETUI_INFO::Reason`).
inline constexpr WORD kReasonBeforeInit = 5;

/// Modes of `DrvConvertDevMode`.
inline constexpr DWORD kConvert = 1;
inline constexpr DWORD kConvertToOldest = 2;
inline constexpr DWORD kDriverDefault = 3;

/// The print system's callback, in its own words and in those of the UI module: same parameters,
/// all of them one machine word or smaller.
using ComPropSheetCallback = LONG_PTR(CALLBACK*)(HANDLE, UINT, LPARAM, LPARAM);

} // namespace o7
