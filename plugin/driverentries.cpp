#include "driverentries.h"

#include <exception>
#include <memory>
#include <stdexcept>

#include "devicecapabilities.h"
#include "devmodebytes.h"
#include "documentsettings.h"
#include "driversheet.h"
#include "lockedsettings.h"
#include "orvikexception.h"
#include "printerddi.h"
#include "printerhandle.h"
#include "printerstandin.h"
#include "printerstore.h"
#include "productlookup.h"
#include "trace.h"

namespace o7 {
namespace {

constexpr wchar_t kModuleName[] = L"o7plugQK";
constexpr LONG kFailed = -1;
constexpr LONG kDone = 1;

enum class Report
{
    ToUser, ///< a sheet was asked for: somebody waits for it
    ToDebugger,
};

void report(const std::exception& error, const wchar_t* entry, Report to) noexcept
{
    if (to == Report::ToUser) {
        OrvikException::DisplayExceptionMessage(error, entry, kModuleName);
    } else {
        OutputDebugStringA(error.what());
    }
}

/// No exception leaves an entry: the caller is a program that knows nothing of ours.
template <class Result, class Body>
Result guarded(const wchar_t* entry, Report to, Result failure, Body body) noexcept
{
    try {
        return body();
    } catch (const std::exception& error) {
        report(error, entry, to);
    } catch (...) {
        report(std::runtime_error("unknown exception"), entry, to);
    }
    if (GetLastError() == ERROR_SUCCESS) {
        SetLastError(ERROR_INVALID_DATA);
    }
    return failure;
}

/// The record that a call is about; null, with a last error, when there is none or when it is from
/// before the fields that it must have.
template <class Header> Header* headerOf(LPARAM parameter)
{
    auto* const header = reinterpret_cast<Header*>(parameter);
    if (header == nullptr || header->cbSize < sizeof(Header)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return header;
}

bool wants(const DocumentPropertyHeader& header, DWORD mode)
{
    return (header.fMode & mode) != 0;
}

/// What new documents begin with holds nobody's secrets.
SettingsScope scopeOf(const DocumentPropertyHeader& header)
{
    return wants(header, kUserDefaults) ? SettingsScope::Defaults : SettingsScope::Document;
}

/// The printer's own settings, then what the application hands in.
std::unique_ptr<ProductSession> openDocument(const DocumentPropertyHeader& header)
{
    auto session = openProductOf(header.hPrinter, header.pszPrinterName);
    if (header.hPrinter != nullptr) {
        const auto defaults = printerDefaults(header.hPrinter);
        if (defaults.get() != nullptr) {
            mergeDevMode(session->model(), bytesOf(*defaults.get()->pDevMode),
                         SettingsScope::Defaults);
        }
    }
    if (wants(header, DM_IN_BUFFER) && header.pdmIn != nullptr) {
        mergeDevMode(session->model(), bytesOf(*header.pdmIn), scopeOf(header));
    }
    return session;
}

/// @throws std::runtime_error when the settings do not fit, instead of keeping some of them.
void writeDocument(IDataModel& model, const DocumentPropertyHeader& header)
{
    if (wants(header, DM_OUT_BUFFER) && header.pdmOut != nullptr &&
        !writeDevMode(model, header.pszPrinterName, bufferOf(*header.pdmOut), scopeOf(header))) {
        throw std::runtime_error("The settings are more than a document can hold.");
    }
}

/// Size, defaults and merging, without a UI.
LONG answerDocument(LPARAM parameter)
{
    auto* const header = headerOf<DocumentPropertyHeader>(parameter);
    if (header == nullptr) {
        return kFailed;
    }
    header->cbOut = kDevModeSize;
    if (header->fMode == 0 || header->pdmOut == nullptr) {
        return static_cast<LONG>(kDevModeSize);
    }
    writeDocument(openDocument(*header)->model(), *header);
    return kDone;
}

/// Nothing, with a last error, when no sheet is asked for. Users without the permission see the
/// pages, locked, and nothing is written.
std::unique_ptr<DriverSheet> documentSheet(LPARAM parameter)
{
    auto* const header = headerOf<DocumentPropertyHeader>(parameter);
    if (header == nullptr || !wants(*header, DM_IN_PROMPT)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    auto session = openDocument(*header);
    const bool locked = wants(*header, kDocumentNoPermission);
    if (locked) {
        lockSettings(session->model());
    }
    const UIMode mode =
        wants(*header, kUserDefaults) ? UIMode::PrintingDefaults : UIMode::PrintingPreferences;
    return std::make_unique<DriverSheet>(std::move(session), mode, header->pszPrinterName,
                                         [header, locked](IDataModel& model) {
                                             if (!locked) {
                                                 writeDocument(model, *header);
                                             }
                                             return !locked;
                                         });
}

/// Users without the permission see the pages, locked, and nothing is stored.
std::unique_ptr<DriverSheet> deviceSheet(LPARAM parameter)
{
    auto* const header = headerOf<DevicePropertyHeader>(parameter);
    if (header == nullptr) {
        return nullptr;
    }
    const bool locked = (header->Flags & kNoPermission) != 0;
    auto session = openProductOf(header->hPrinter, header->pszPrinterName);
    if (locked) {
        lockSettings(session->model());
    }
    return std::make_unique<DriverSheet>(
        std::move(session), UIMode::DeviceSettings, header->pszPrinterName,
        [header, locked](IDataModel& model) {
            if (!locked && !storeDeviceSettings(header->hPrinter, model)) {
                throw std::runtime_error("The print system did not keep the device settings.");
            }
            return !locked;
        });
}

using SheetFactory = std::unique_ptr<DriverSheet> (*)(LPARAM);

LONG beginSheet(PROPSHEETUI_INFO& info, SheetFactory make)
{
    auto sheet = make(info.lParamInit);
    if (!sheet) {
        return kFailed;
    }
    sheet->addPages(info);
    info.UserData = reinterpret_cast<ULONG_PTR>(sheet.release());
    info.Result = CPSUI_CANCEL;
    return kDone;
}

/// One call of the print system about a sheet.
LONG sheetStep(PROPSHEETUI_INFO& info, LPARAM parameter, SheetFactory make)
{
    auto* const sheet = reinterpret_cast<DriverSheet*>(info.UserData);
    switch (info.Reason) {
    case PROPSHEETUI_REASON_INIT:
        return beginSheet(info, make);
    case PROPSHEETUI_REASON_GET_INFO_HEADER:
        if (sheet != nullptr) {
            sheet->fillHeader(*reinterpret_cast<PROPSHEETUI_INFO_HEADER*>(parameter));
        }
        return kDone;
    case PROPSHEETUI_REASON_SET_RESULT:
        info.Result = static_cast<ULONG_PTR>(reinterpret_cast<SETRESULT_INFO*>(parameter)->Result);
        return kDone;
    case PROPSHEETUI_REASON_DESTROY:
        info.UserData = 0;
        delete sheet;
        return kDone;
    case kReasonBeforeInit:
        return kDone;
    default:
        return 0;
    }
}

bool isConversion(DWORD mode, const DEVMODEW* in)
{
    return mode == kDriverDefault ||
           ((mode == kConvert || mode == kConvertToOldest) && in != nullptr);
}

BOOL convert(LPCWSTR printerName, PDEVMODEW in, PDEVMODEW out, DWORD& size, DWORD mode)
{
    const DWORD room = size;
    size = kDevModeSize;
    if (!isConversion(mode, in)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    if (out == nullptr || room < kDevModeSize) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    const PrinterHandle printer(printerName);
    const auto session = openProductOf(printer.get(), printerName);
    if (mode != kDriverDefault) {
        mergeDevMode(session->model(), bytesOf(*in));
    }
    return writeDevMode(session->model(), printerName, bufferOf(*out)) ? TRUE : FALSE;
}

} // namespace
} // namespace o7

LONG WINAPI DrvDocumentPropertySheets(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    using namespace o7;
    return guarded(L"DrvDocumentPropertySheets",
                   info == nullptr ? Report::ToDebugger : Report::ToUser, kFailed, [&] {
                       return info == nullptr ? answerDocument(parameter)
                                              : sheetStep(*info, parameter, documentSheet);
                   });
}

LONG WINAPI DrvDevicePropertySheets(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    using namespace o7;
    return guarded(L"DrvDevicePropertySheets", Report::ToUser, kFailed, [&] {
        if (info == nullptr) {
            SetLastError(ERROR_INVALID_PARAMETER);
            return kFailed;
        }
        return sheetStep(*info, parameter, deviceSheet);
    });
}

DWORD WINAPI DrvDeviceCapabilities(HANDLE printer, PWSTR deviceName, WORD capability, PVOID output,
                                   PDEVMODEW devMode) noexcept
{
    using namespace o7;
    return guarded(L"DrvDeviceCapabilities", Report::ToDebugger, DWORD{kNotAnswered}, [&] {
        const auto session = openProductOf(printer, deviceName);
        // The fields are those of the settings at hand; everything else is the device's.
        if (capability == DC_FIELDS && devMode != nullptr) {
            mergeDevMode(session->model(), bytesOf(*devMode));
        }
        return DWORD{deviceCapability(session->model(), capability, output)};
    });
}

BOOL WINAPI DrvConvertDevMode(LPCWSTR printerName, PDEVMODEW in, PDEVMODEW out, PDWORD size,
                              DWORD mode) noexcept
{
    using namespace o7;
    return guarded(L"DrvConvertDevMode", Report::ToDebugger, FALSE, [&] {
        if (size == nullptr) {
            SetLastError(ERROR_INVALID_PARAMETER);
            return FALSE;
        }
        return convert(printerName, in, out, *size, mode);
    });
}

void O7SetPrinterStandIn(o7::PrinterStandIn* standIn) noexcept
{
    o7::setPrinterStandIn(standIn);
}
