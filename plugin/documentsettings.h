#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "devmodelayout.h"
#include "idatamodel.h"
#include "privatepart.h"

namespace o7 {

/// Size in bytes of the plug-in's DEVMODE: the public part and the private one behind it.
inline constexpr std::size_t kDevModeSize = kPublicPartSize + kPrivatePartSize;

/// Writes the accepted settings of a data model into a DEVMODE. Every byte is written; a text that
/// is too long for its field is cut.
/// @return false when the settings do not fit, which a data model of this driver never lets come to
///         pass (kSettingsBlockLimit): the private part then holds none.
bool writeDevMode(IDataModel& model, const CXString& printerName,
                  std::span<std::uint8_t, kDevModeSize> devMode,
                  SettingsScope scope = SettingsScope::Document);

/// Merges a DEVMODE that an application hands in: the private part gives all settings when it is
/// ours and whole, then those public fields whose bits are set have their way, as they may be newer
/// than the private part. The result becomes the accepted settings. One whose sizes leave no room
/// for the fields in use is passed over.
/// The settings of the device itself stay as they are in the model: they are the printer's.
/// @param devMode  as many bytes as the DEVMODE says it has.
/// @param scope    Document, or Defaults for one that new documents begin with.
void mergeDevMode(IDataModel& model, std::span<const std::uint8_t> devMode,
                  SettingsScope scope = SettingsScope::Document);

} // namespace o7
