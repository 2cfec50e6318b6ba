#pragma once

#include <windows.h>

class IDataModel;

namespace o7 {

/// Answers one question of `DeviceCapabilities` for a product.
/// @param output  null: only the count is wanted; else room for as many entries as were counted.
/// @return the number of entries, or the answer itself for questions with a number for an answer;
///         -1 for questions that the driver leaves to the system.
DWORD deviceCapability(IDataModel& model, WORD capability, void* output);

} // namespace o7
