#pragma once

#include <windows.h>

#include "printsystemrecord.h"

class IDataModel;

namespace o7 {

/// What is installed in the device is kept with the printer (`GetPrinterData`, value
/// "O7DeviceSettings", as the block that the data model exports) and so is the same for all users
/// and documents. Without a printer handle the process's stand-in is asked, when it has one.

/// Takes the printer's stored device settings into the model. Without any, or with damaged ones,
/// the model stays as it is.
void loadDeviceSettings(HANDLE printer, IDataModel& model);

/// Keeps the accepted settings of the model with the printer.
/// @return false, with the thread's last error, when the print system refuses it (which it does
///         for users without the right to manage the printer).
bool storeDeviceSettings(HANDLE printer, const IDataModel& model);

/// The printer's own settings for new documents: the user's, or else those for everybody
/// (`GetPrinter`, levels 9 and 8). No record when there are none. It is laid out the same
/// for both levels.
PrintSystemRecord<PRINTER_INFO_9W> printerDefaults(HANDLE printer);

} // namespace o7
