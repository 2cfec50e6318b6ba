#pragma once

#include "uimenurecords.h"

namespace o7 {

/// The sections of the paper-size menu, inch sizes first.
UIRecords<UIMenuSectionRecord> paperSizeMenuUS();
/// The sections of the paper-size menu, metric sizes first.
UIRecords<UIMenuSectionRecord> paperSizeMenuMetric();

} // namespace o7
