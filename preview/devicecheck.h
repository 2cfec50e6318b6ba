#pragma once

#include <string>
#include <vector>

#include "datamodelfactory.h"

namespace o7 {

/// Plays what happens to a document's settings when a unit of the device goes, or another of its
/// settings changes: each setting is given each of its values, then each device setting each of
/// its own. A rule of the device that greys or hides the setting as a whole must not leave a
/// value in force that could no longer be chosen: neither shown as a conflict nor to be changed.
/// @return a sentence for each setting and device setting where that happens.
std::vector<std::string> findValuesLeftInForce(const ProductPackage& package, IStringSource& texts);

} // namespace o7
