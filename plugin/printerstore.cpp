#include "printerstore.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "idatamodel.h"
#include "printerstandin.h"

namespace o7 {
namespace {

// The print system takes the name as text that may be written, and does not write it.
wchar_t g_valueName[] = L"O7DeviceSettings";

} // namespace

void loadDeviceSettings(HANDLE printer, IDataModel& model)
{
    if (printer == nullptr) {
        if (PrinterStandIn* const standIn = printerStandIn()) {
            standIn->loadDeviceSettings(model);
        }
        return;
    }
    std::vector<std::uint8_t> block(kSettingsBlockLimit);
    DWORD type = 0;
    DWORD size = 0;
    if (GetPrinterDataW(printer, g_valueName, &type, block.data(), static_cast<DWORD>(block.size()),
                        &size) == ERROR_SUCCESS &&
        type == REG_BINARY && size <= block.size()) {
        model.ImportSettings(block.data(), size);
    }
}

bool storeDeviceSettings(HANDLE printer, const IDataModel& model)
{
    if (printer == nullptr) {
        PrinterStandIn* const standIn = printerStandIn();
        return standIn != nullptr && standIn->storeDeviceSettings(model);
    }
    std::vector<std::uint8_t> block;
    if (!model.ExportSettings(block)) {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return false;
    }
    const DWORD result = SetPrinterDataW(printer, g_valueName, REG_BINARY, block.data(),
                                         static_cast<DWORD>(block.size()));
    SetLastError(result);
    return result == ERROR_SUCCESS;
}

PrintSystemRecord<PRINTER_INFO_9W> printerDefaults(HANDLE printer)
{
    for (const DWORD level : {9U, 8U}) {
        PrintSystemRecord<PRINTER_INFO_9W> record([=](BYTE* buffer, DWORD size, DWORD* needed) {
            return GetPrinterW(printer, level, buffer, size, needed);
        });
        if (record.get() != nullptr && record.get()->pDevMode != nullptr) {
            return record;
        }
    }
    return {};
}

} // namespace o7
