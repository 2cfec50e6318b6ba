#pragma once

#include <windows.h>

#include <cstddef>

#include "idatamodel.h"
#include "privatepart.h"

namespace o7 {

/// Size in bytes of the plug-in's DEVMODE: the public part and the private one behind it.
inline constexpr std::size_t kDevModeSize = sizeof(DEVMODEW) + kPrivatePartSize;

/// Writes the accepted settings of a data model into a DEVMODE. Every byte is written; a text that
/// is too long for its field is cut.
/// @param devMode      at least kDevModeSize bytes.
/// @param printerName  may be null.
/// @return false when the settings do not fit: the private part then stands for the defaults.
bool writeDevMode(IDataModel& model, const wchar_t* printerName, DEVMODEW& devMode);

/// Merges a DEVMODE that an application hands in: the private part gives all settings when it is
/// ours and whole, then those public fields whose bits are set have their way, as they may be newer
/// than the private part. The result becomes the accepted settings. The sizes that the DEVMODE
/// states are believed; one too small for the fields in use is passed over.
/// The settings of the device itself stay as they are in the model: they are the printer's.
void mergeDevMode(IDataModel& model, const DEVMODEW& devMode);

} // namespace o7
