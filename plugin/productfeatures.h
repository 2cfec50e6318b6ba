#pragma once

#include "datamodelids.h"

namespace o7 {

/// The features that the plug-in itself knows, beside what it merely carries. A product may lack
/// any of them.
// clang-format off
inline constexpr auto kPrinterName   = DataModelIds::kFeaturePrinterName;
inline constexpr auto kPaperSize     = static_cast<DataModelIds::tagFeatureEnum>(3002);
inline constexpr auto kPaperTray     = static_cast<DataModelIds::tagFeatureEnum>(3003);
inline constexpr auto kPaperType     = static_cast<DataModelIds::tagFeatureEnum>(3004);
inline constexpr auto kSides         = static_cast<DataModelIds::tagFeatureEnum>(3005);
inline constexpr auto kOrientation   = static_cast<DataModelIds::tagFeatureEnum>(3006);
inline constexpr auto kCopies        = static_cast<DataModelIds::tagFeatureEnum>(3007);
inline constexpr auto kCollate       = static_cast<DataModelIds::tagFeatureEnum>(3008);
inline constexpr auto kColourMode    = static_cast<DataModelIds::tagFeatureEnum>(3009);
inline constexpr auto kPrintQuality  = static_cast<DataModelIds::tagFeatureEnum>(3010);
inline constexpr auto kStaple        = static_cast<DataModelIds::tagFeatureEnum>(3012);
inline constexpr auto kPagesPerSheet = static_cast<DataModelIds::tagFeatureEnum>(3016);
inline constexpr auto kResolution    = static_cast<DataModelIds::tagFeatureEnum>(3019);
inline constexpr auto kScaling       = static_cast<DataModelIds::tagFeatureEnum>(3028);
inline constexpr auto kCustomWidth   = static_cast<DataModelIds::tagFeatureEnum>(3103);
inline constexpr auto kCustomLength  = static_cast<DataModelIds::tagFeatureEnum>(3104);
inline constexpr auto kScalePercent  = static_cast<DataModelIds::tagFeatureEnum>(3107);

/// Paper sizes that the device settings say lie in the trays.
inline constexpr DataModelIds::tagFeatureEnum kLoadedPapers[] = {
    static_cast<DataModelIds::tagFeatureEnum>(3073), static_cast<DataModelIds::tagFeatureEnum>(3075),
    static_cast<DataModelIds::tagFeatureEnum>(3077), static_cast<DataModelIds::tagFeatureEnum>(3079)};

/// Values with a meaning of their own.
inline constexpr auto kNoStaples         = static_cast<DataModelIds::tagValueEnum>(5160);
inline constexpr auto kNoScaling         = static_cast<DataModelIds::tagValueEnum>(5210);
inline constexpr auto kCustomPaper       = static_cast<DataModelIds::tagValueEnum>(5250);
inline constexpr auto kScaleByPercentage = static_cast<DataModelIds::tagValueEnum>(5400);

/// What a product may state about itself (state-only features, found by name).
inline constexpr wchar_t kPagesPerMinute[]   = L"odrv-pages-per-minute";
inline constexpr wchar_t kMemoryMegabytes[]  = L"odrv-memory-megabytes";
// clang-format on

} // namespace o7
