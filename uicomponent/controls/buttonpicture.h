#pragma once

#include "uihandles.h"

namespace o7 {

/// A picture of the module's resources as an icon that a button can show (BM_SETIMAGE), as large as
/// the area allows in its own proportions, in its middle. It is a picture for UIImageUtility
/// (type "BINARY") or a bitmap without its key colour, whichever has that number. Null when there
/// is none or it is broken.
/// @param area  pixels
UniqueIcon loadButtonPicture(HINSTANCE module, int resource, SIZE area);

} // namespace o7
