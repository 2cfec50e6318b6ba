#include "driverentries.h"

#include <exception>
#include <memory>
#include <stdexcept>

#include "devicecapabilities.h"
#include "documentsettings.h"
#include "driversheet.h"
#include "orvikexception.h"
#include "printerddi.h"
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

bool wants(const DocumentPropertyHeader& header, DWORD mode)
{
    return (header.fMode & mode) != 0;
}

/// The printer's own settings, then what the application hands in.
std::unique_ptr<ProductSession> openDocument(const DocumentPropertyHeader& header)
{
    auto session = openProductOf(header.hPrinter);
    if (header.hPrinter != nullptr) {
        const auto defaults = printerDefaults(header.hPrinter);
        if (defaults.get() != nullptr) {
            mergeDevMode(session->model(), *defaults.get()->pDevMode);
        }
    }
    if (wants(header, DM_IN_BUFFER) && header.pdmIn != nullptr) {
        mergeDevMode(session->model(), *header.pdmIn);
    }
    return session;
}

void writeDocument(IDataModel& model, const DocumentPropertyHeader& header)
{
    if (wants(header, DM_OUT_BUFFER) && header.pdmOut != nullptr) {
        // Settings too large for the private part cannot come out of this model's package.
        writeDevMode(model, header.pszPrinterName, *header.pdmOut);
    }
}

/// Size, defaults and merging, without a UI.
LONG answerDocument(DocumentPropertyHeader& header)
{
    if (header.fMode == 0 || header.pdmOut == nullptr) {
        header.cbOut = kDevModeSize;
        return static_cast<LONG>(kDevModeSize);
    }
    writeDocument(openDocument(header)->model(), header);
    header.cbOut = kDevModeSize;
    return kDone;
}

std::unique_ptr<DriverSheet> documentSheet(LPARAM parameter)
{
    auto* const header = reinterpret_cast<DocumentPropertyHeader*>(parameter);
    return std::make_unique<DriverSheet>(
        openDocument(*header), UIMode::PrintingPreferences, header->pszPrinterName,
        [header](IDataModel& model) { writeDocument(model, *header); });
}

std::unique_ptr<DriverSheet> deviceSheet(LPARAM parameter)
{
    auto* const header = reinterpret_cast<DevicePropertyHeader*>(parameter);
    return std::make_unique<DriverSheet>(
        openProductOf(header->hPrinter), UIMode::DeviceSettings, header->pszPrinterName,
        [header](IDataModel& model) {
            if ((header->Flags & kNoPermission) == 0 &&
                !storeDeviceSettings(header->hPrinter, model)) {
                throw std::runtime_error("The print system did not keep the device settings.");
            }
        });
}

using SheetFactory = std::unique_ptr<DriverSheet> (*)(LPARAM);

LONG beginSheet(PROPSHEETUI_INFO& info, SheetFactory make)
{
    auto sheet = make(info.lParamInit);
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

BOOL convert(LPCWSTR printerName, PDEVMODEW in, PDEVMODEW out, DWORD& size, DWORD mode)
{
    const DWORD room = size;
    size = kDevModeSize;
    if (out == nullptr || room < kDevModeSize) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return FALSE;
    }
    if (mode != kDriverDefault && mode != kConvert && mode != kConvertToOldest) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const auto session = openProductOf(nullptr);
    if (mode != kDriverDefault && in != nullptr) {
        mergeDevMode(session->model(), *in);
    }
    return writeDevMode(session->model(), printerName, *out);
}

} // namespace
} // namespace o7

LONG WINAPI DrvDocumentPropertySheets(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    using namespace o7;
    return guarded(L"DrvDocumentPropertySheets",
                   info == nullptr ? Report::ToDebugger : Report::ToUser, kFailed, [&] {
                       return info == nullptr
                                  ? answerDocument(
                                        *reinterpret_cast<DocumentPropertyHeader*>(parameter))
                                  : sheetStep(*info, parameter, documentSheet);
                   });
}

LONG WINAPI DrvDevicePropertySheets(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    using namespace o7;
    return guarded(L"DrvDevicePropertySheets", Report::ToUser, kFailed, [&] {
        return info == nullptr ? kFailed : sheetStep(*info, parameter, deviceSheet);
    });
}

DWORD WINAPI DrvDeviceCapabilities(HANDLE printer, PWSTR, WORD capability, PVOID output,
                                   PDEVMODEW) noexcept
{
    using namespace o7;
    return guarded(L"DrvDeviceCapabilities", Report::ToDebugger, static_cast<DWORD>(kFailed), [&] {
        return deviceCapability(openProductOf(printer)->model(), capability, output);
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
