#pragma once

#include "previewoptions.h"
#include "previewrun.h"

namespace o7 {

/// Shows the control gallery until it is closed; with a picture folder or a snapshot file it writes
/// those instead and ends. Reports failures in sentences on the error stream.
ExitCode runGallery(const PreviewOptions& options);

} // namespace o7
