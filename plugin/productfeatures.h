#pragma once

#include "datamodelids.h"

namespace o7 {

/// The features that the plug-in itself knows, beside what it merely carries.
// clang-format off
inline constexpr auto kPaperSize   = static_cast<DataModelIds::tagFeatureEnum>(3002);
inline constexpr auto kPaperTray   = static_cast<DataModelIds::tagFeatureEnum>(3003);
inline constexpr auto kPaperType   = static_cast<DataModelIds::tagFeatureEnum>(3004);
inline constexpr auto kSides       = static_cast<DataModelIds::tagFeatureEnum>(3005);
inline constexpr auto kOrientation = static_cast<DataModelIds::tagFeatureEnum>(3006);
inline constexpr auto kCopies      = static_cast<DataModelIds::tagFeatureEnum>(3007);
inline constexpr auto kCollate     = static_cast<DataModelIds::tagFeatureEnum>(3008);
inline constexpr auto kColourMode  = static_cast<DataModelIds::tagFeatureEnum>(3009);
inline constexpr auto kResolution  = static_cast<DataModelIds::tagFeatureEnum>(3019);

/// Device settings are this block: they say what is installed and belong to the printer.
inline constexpr auto kFirstDeviceFeature = static_cast<DataModelIds::tagFeatureEnum>(3040);
inline constexpr auto kLastDeviceFeature  = static_cast<DataModelIds::tagFeatureEnum>(3047);
// clang-format on

} // namespace o7
