// One row for each setting: its molecule, with the label it carries wherever it is shown.
#pragma once

#include "tablerows.h"

namespace o7::settings {

// clang-format off
// Printing
inline constexpr UIMoleculeRecord kJobType           = combo<o7::kJobType,            O7STR_L_JOB_TYPE>();
inline constexpr UIMoleculeRecord kPaperSize         = combo<o7::kPaperSize,          O7STR_L_PAPER_SIZE>();
inline constexpr UIMoleculeRecord kPaperTray         = combo<o7::kPaperTray,          O7STR_L_PAPER_TRAY>();
inline constexpr UIMoleculeRecord kPaperType         = combo<o7::kPaperType,          O7STR_L_PAPER_TYPE>();
inline constexpr UIMoleculeRecord kSides             = combo<o7::kSides,              O7STR_L_SIDES>();
inline constexpr UIMoleculeRecord kOrientation       = combo<o7::kOrientation,        O7STR_L_ORIENTATION>();
inline constexpr UIMoleculeRecord kCollate           = check<o7::kCollate,            O7STR_L_COLLATE>();
inline constexpr UIMoleculeRecord kColourMode        = combo<o7::kColourMode,         O7STR_L_COLOUR_MODE>();
inline constexpr UIMoleculeRecord kPrintQuality      = combo<o7::kPrintQuality,       O7STR_L_QUALITY>();
inline constexpr UIMoleculeRecord kTonerSaving       = check<o7::kTonerSaving,        O7STR_L_TONER_SAVING>();
inline constexpr UIMoleculeRecord kStaple            = combo<o7::kStaple,             O7STR_L_STAPLE>();
inline constexpr UIMoleculeRecord kPunch             = combo<o7::kPunch,              O7STR_L_PUNCH>();
inline constexpr UIMoleculeRecord kFold              = combo<o7::kFold,               O7STR_L_FOLD>();
inline constexpr UIMoleculeRecord kOutputBin         = combo<o7::kOutputBin,          O7STR_L_OUTPUT_BIN>();
inline constexpr UIMoleculeRecord kPagesPerSheet     = combo<o7::kPagesPerSheet,      O7STR_L_PAGES_PER_SHEET>();
inline constexpr UIMoleculeRecord kPageBorders       = check<o7::kPageBorders,        O7STR_L_PAGE_BORDERS>();
inline constexpr UIMoleculeRecord kBooklet           = check<o7::kBooklet,            O7STR_L_BOOKLET>();
inline constexpr UIMoleculeRecord kResolution        = combo<o7::kResolution,         O7STR_L_RESOLUTION>();
inline constexpr UIMoleculeRecord kOptimiseFor       = combo<o7::kOptimiseFor,        O7STR_L_OPTIMISE_FOR>();
inline constexpr UIMoleculeRecord kSkipBlankPages    = check<o7::kSkipBlankPages,     O7STR_L_SKIP_BLANK>();
inline constexpr UIMoleculeRecord kBannerSheet       = check<o7::kBannerSheet,        O7STR_L_BANNER_SHEET>();
inline constexpr UIMoleculeRecord kWatermark         = combo<o7::kWatermark,          O7STR_L_WATERMARK>();
inline constexpr UIMoleculeRecord kWatermarkFirst    = check<o7::kWatermarkFirstOnly, O7STR_L_WATERMARK_FIRST_ONLY>();
inline constexpr UIMoleculeRecord kCovers            = combo<o7::kCovers,             O7STR_L_COVERS>();
inline constexpr UIMoleculeRecord kCoverTray         = combo<o7::kCoverTray,          O7STR_L_COVER_TRAY>();
inline constexpr UIMoleculeRecord kMirrorImage       = check<o7::kMirrorImage,        O7STR_L_MIRROR_IMAGE>();
inline constexpr UIMoleculeRecord kScaling           = combo<o7::kScaling,            O7STR_L_SCALING>();
inline constexpr UIMoleculeRecord kNotifyWhenDone    = check<o7::kNotifyWhenDone,     O7STR_L_NOTIFY>();
inline constexpr UIMoleculeRecord kAccounting        = check<o7::kAccounting,         O7STR_L_ACCOUNTING>();
inline constexpr UIMoleculeRecord kEdgeToEdge        = check<o7::kEdgeToEdge,         O7STR_L_EDGE_TO_EDGE>();

// Device and administration
inline constexpr UIMoleculeRecord kFinisher          = combo<o7::kInstalledFinisher,  O7STR_L_FINISHER>();
inline constexpr UIMoleculeRecord kTrays             = combo<o7::kInstalledTrays,     O7STR_L_TRAYS>();
inline constexpr UIMoleculeRecord kPunchKit          = check<o7::kInstalledPunchKit,  O7STR_L_PUNCH_KIT>();
inline constexpr UIMoleculeRecord kHardDisk          = check<o7::kInstalledHardDisk,  O7STR_L_HARD_DISK>();
inline constexpr UIMoleculeRecord kFoldingUnit       = check<o7::kInstalledFolder,    O7STR_L_FOLDING_UNIT>();
inline constexpr UIMoleculeRecord kDuplexUnit        = check<o7::kInstalledDuplexUnit, O7STR_L_DUPLEX_UNIT>();
inline constexpr UIMoleculeRecord kBidirectional     = check<o7::kBidirectional,      O7STR_L_BIDIRECTIONAL>();
inline constexpr UIMoleculeRecord kUnits             = combo<o7::kMeasurementUnits,   O7STR_L_UNITS>();
inline constexpr UIMoleculeRecord kDoNotShowAgain    = check<DataModelIds::kFeatureDoNotShowAgain, O7STR_L_DO_NOT_SHOW>();
inline constexpr UIMoleculeRecord kTrackJobs         = check<DataModelIds::kFeatureJobTracker, O7STR_L_TRACK_JOBS,
                                                             DataModelIds::kValueJobTrackerOn, kJobTrackingOff>();
inline constexpr UIMoleculeRecord kWarnOnApply       = check<DataModelIds::kFeatureApplyResult, O7STR_L_WARN_APPLY,
                                                             DataModelIds::kValueApplyRejected, kApplyQuietly>();
// clang-format on

} // namespace o7::settings
