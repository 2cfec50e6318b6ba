// One row for each setting: its molecule, with the label it carries wherever it is shown.
#pragma once

#include "tablerows.h"

namespace o7::settings {

// clang-format off
// Printing
inline constexpr UIMoleculeRecord kJobType             = combo<o7::kJobType, O7STR_L_JOB_TYPE>();
inline constexpr UIMoleculeRecord kJobTypeList         = pickOne<o7::kJobType, O7STR_L_JOB_TYPE, 6>();
inline constexpr UIMoleculeRecord kPaperSize         = combo<o7::kPaperSize,          O7STR_L_PAPER_SIZE>();
inline constexpr UIMoleculeRecord kPaperTray         = combo<o7::kPaperTray,          O7STR_L_PAPER_TRAY>();
inline constexpr UIMoleculeRecord kPaperType         = combo<o7::kPaperType,          O7STR_L_PAPER_TYPE>();
inline constexpr UIMoleculeRecord kSides             = combo<o7::kSides,              O7STR_L_SIDES>();
inline constexpr UIMoleculeRecord kOrientation         = pickOneRadio<o7::kOrientation, O7STR_L_ORIENTATION>();
inline constexpr UIMoleculeRecord kCollate           = check<o7::kCollate,            O7STR_L_COLLATE>();
inline constexpr UIMoleculeRecord kColourMode        = combo<o7::kColourMode,         O7STR_L_COLOUR_MODE>();
inline constexpr UIMoleculeRecord kPrintQuality        = pickOneRadio<o7::kPrintQuality, O7STR_L_QUALITY>();
inline constexpr UIMoleculeRecord kPrintQualityList    = combo<o7::kPrintQuality, O7STR_L_QUALITY>();
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
inline constexpr UIMoleculeRecord kWatermark           = pickOne<o7::kWatermark, O7STR_L_WATERMARK, 6>();
inline constexpr UIMoleculeRecord kWatermarkList       = combo<o7::kWatermark, O7STR_L_WATERMARK>();
inline constexpr UIMoleculeRecord kWatermarkFirst    = check<o7::kWatermarkFirstOnly, O7STR_L_WATERMARK_FIRST_ONLY>();
inline constexpr UIMoleculeRecord kCovers            = combo<o7::kCovers,             O7STR_L_COVERS>();
inline constexpr UIMoleculeRecord kCoverTray         = combo<o7::kCoverTray,          O7STR_L_COVER_TRAY>();
inline constexpr UIMoleculeRecord kMirrorImage       = check<o7::kMirrorImage,        O7STR_L_MIRROR_IMAGE>();
inline constexpr UIMoleculeRecord kScaling           = combo<o7::kScaling,            O7STR_L_SCALING>();
inline constexpr UIMoleculeRecord kNotifyWhenDone    = check<o7::kNotifyWhenDone,     O7STR_L_NOTIFY>();
inline constexpr UIMoleculeRecord kAccounting        = check<o7::kAccounting,         O7STR_L_ACCOUNTING>();
inline constexpr UIMoleculeRecord kEdgeToEdge        = check<o7::kEdgeToEdge,         O7STR_L_EDGE_TO_EDGE>();
inline constexpr UIMoleculeRecord kCopies              = spin<o7::kCopies, O7STR_L_COPIES>();

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

// Paper
inline constexpr UIMoleculeRecord kPaperWeight         = combo<o7::kPaperWeight, O7STR_L_PAPER_WEIGHT>();
inline constexpr UIMoleculeRecord kPaperColour         = combo<o7::kPaperColour, O7STR_L_PAPER_COLOUR>();
inline constexpr UIMoleculeRecord kTargetSize          = combo<o7::kTargetSize, O7STR_L_TARGET_SIZE>();
inline constexpr UIMoleculeRecord kTraySwitching       = check<o7::kTraySwitching, O7STR_L_TRAY_SWITCHING>();
inline constexpr UIMoleculeRecord kMissingPaper        = combo<o7::kMissingPaper, O7STR_L_MISSING_PAPER>();
inline constexpr UIMoleculeRecord kFeedDirection       = combo<o7::kFeedDirection, O7STR_L_FEED_DIRECTION>();
inline constexpr UIMoleculeRecord kLetterhead          = check<o7::kLetterheadMode, O7STR_L_LETTERHEAD>();
inline constexpr UIMoleculeRecord kManualFeed          = check<o7::kManualFeed, O7STR_L_MANUAL_FEED>();
inline constexpr UIMoleculeRecord kManualTwoSided      = check<o7::kManualTwoSided, O7STR_L_MANUAL_TWO_SIDED>();
inline constexpr UIMoleculeRecord kCustomWidth         = length<o7::kCustomWidth, O7STR_L_CUSTOM_WIDTH>();
inline constexpr UIMoleculeRecord kCustomLength        = length<o7::kCustomLength, O7STR_L_CUSTOM_LENGTH>();
inline constexpr UIMoleculeRecord kPaperThickness      = length<o7::kPaperThickness, O7STR_L_PAPER_THICKNESS, 2>();
inline constexpr UIMoleculeRecord kTabCount            = spin<o7::kTabCount, O7STR_L_TAB_COUNT>();
inline constexpr UIMoleculeRecord kTabShift            = length<o7::kTabShift, O7STR_L_TAB_SHIFT, 1>();

// Layout
inline constexpr UIMoleculeRecord kBindingEdge         = combo<o7::kBindingEdge, O7STR_L_BINDING_EDGE>();
inline constexpr UIMoleculeRecord kBookletDirection    = combo<o7::kBookletDirection, O7STR_L_BOOKLET_DIRECTION>();
inline constexpr UIMoleculeRecord kPageOrder           = combo<o7::kPageOrder, O7STR_L_PAGE_ORDER>();
inline constexpr UIMoleculeRecord kPoster              = combo<o7::kPoster, O7STR_L_POSTER>();
inline constexpr UIMoleculeRecord kRotate180           = check<o7::kRotate180, O7STR_L_ROTATE_180>();
inline constexpr UIMoleculeRecord kReverseOrder        = check<o7::kReverseOrder, O7STR_L_REVERSE_ORDER>();
inline constexpr UIMoleculeRecord kImageShift          = combo<o7::kImageShift, O7STR_L_IMAGE_SHIFT>();
inline constexpr UIMoleculeRecord kCropMarks           = combo<o7::kCropMarks, O7STR_L_CROP_MARKS>();
inline constexpr UIMoleculeRecord kImposition          = combo<o7::kImposition, O7STR_L_IMPOSITION>();
inline constexpr UIMoleculeRecord kScalePercent        = spin<o7::kScalePercent, O7STR_L_SCALE_PERCENT, O7STR_U_PERCENT>();
inline constexpr UIMoleculeRecord kBindingMargin       = length<o7::kBindingMargin, O7STR_L_BINDING_MARGIN>();
inline constexpr UIMoleculeRecord kBookletGutter       = length<o7::kBookletGutter, O7STR_L_BOOKLET_GUTTER>();
inline constexpr UIMoleculeRecord kBookletCreep        = length<o7::kBookletCreep, O7STR_L_BOOKLET_CREEP, 1>();
inline constexpr UIMoleculeRecord kBookletSection      = spin<o7::kBookletSection, O7STR_L_BOOKLET_SECTION>();
inline constexpr UIMoleculeRecord kImpositionCount     = spin<o7::kImpositionCount, O7STR_L_IMPOSITION_COUNT>();
inline constexpr UIMoleculeRecord kBleed               = length<o7::kBleed, O7STR_L_BLEED, 1>();
inline constexpr UIMoleculeRecord kShiftFrontX         = length<o7::kShiftFrontX, O7STR_L_SHIFT_FRONT_X, 1>();
inline constexpr UIMoleculeRecord kShiftFrontY         = length<o7::kShiftFrontY, O7STR_L_SHIFT_FRONT_Y, 1>();
inline constexpr UIMoleculeRecord kShiftBackX          = length<o7::kShiftBackX, O7STR_L_SHIFT_BACK_X, 1>();
inline constexpr UIMoleculeRecord kShiftBackY          = length<o7::kShiftBackY, O7STR_L_SHIFT_BACK_Y, 1>();
inline constexpr UIMoleculeRecord kPageRange           = range<o7::kSomePages, o7::kPageRange, O7STR_L_SOME_PAGES, O7STR_L_PAGE_FROM, O7STR_L_PAGE_TO>();

// Finishing
inline constexpr UIMoleculeRecord kOffsetStacking      = combo<o7::kOffsetStacking, O7STR_L_OFFSET_STACKING>();
inline constexpr UIMoleculeRecord kSeparators          = combo<o7::kSeparators, O7STR_L_SEPARATORS>();
inline constexpr UIMoleculeRecord kSeparatorTray       = combo<o7::kSeparatorTray, O7STR_L_SEPARATOR_TRAY>();
inline constexpr UIMoleculeRecord kTrim                = combo<o7::kTrim, O7STR_L_TRIM>();
inline constexpr UIMoleculeRecord kCrease              = check<o7::kCrease, O7STR_L_CREASE>();
inline constexpr UIMoleculeRecord kBinding             = combo<o7::kBinding, O7STR_L_BINDING>();
inline constexpr UIMoleculeRecord kFoldPrintSide       = combo<o7::kFoldPrintSide, O7STR_L_FOLD_PRINT_SIDE>();
inline constexpr UIMoleculeRecord kSquareSpine         = check<o7::kSquareSpine, O7STR_L_SQUARE_SPINE>();
inline constexpr UIMoleculeRecord kOutputFace          = combo<o7::kOutputFace, O7STR_L_OUTPUT_FACE>();
inline constexpr UIMoleculeRecord kFoldSheets          = spin<o7::kFoldSheets, O7STR_L_FOLD_SHEETS>();
inline constexpr UIMoleculeRecord kTrimAmount          = length<o7::kTrimAmount, O7STR_L_TRIM_AMOUNT>();
inline constexpr UIMoleculeRecord kSpineThickness      = length<o7::kSpineThickness, O7STR_L_SPINE_THICKNESS, 1>();

// Covers
inline constexpr UIMoleculeRecord kCoverPrinting       = combo<o7::kCoverPrinting, O7STR_L_COVER_PRINTING>();
inline constexpr UIMoleculeRecord kCoverType           = combo<o7::kCoverType, O7STR_L_COVER_TYPE>();
inline constexpr UIMoleculeRecord kCoverWeight         = combo<o7::kCoverWeight, O7STR_L_COVER_WEIGHT>();
inline constexpr UIMoleculeRecord kBackCoverTray       = combo<o7::kBackCoverTray, O7STR_L_BACK_COVER_TRAY>();
inline constexpr UIMoleculeRecord kBackCoverPrinting   = combo<o7::kBackCoverPrinting, O7STR_L_BACK_COVER_PRINTING>();

// Image and colour
inline constexpr UIMoleculeRecord kColourCorrection    = combo<o7::kColourCorrection, O7STR_L_COLOUR_CORRECTION>();
inline constexpr UIMoleculeRecord kRenderingIntent     = combo<o7::kRenderingIntent, O7STR_L_RENDERING_INTENT>();
inline constexpr UIMoleculeRecord kRgbProfile          = combo<o7::kRgbProfile, O7STR_L_RGB_PROFILE>();
inline constexpr UIMoleculeRecord kPressSimulation     = combo<o7::kPressSimulation, O7STR_L_PRESS_SIMULATION>();
inline constexpr UIMoleculeRecord kPureBlack           = check<o7::kPureBlack, O7STR_L_PURE_BLACK>();
inline constexpr UIMoleculeRecord kHalftone            = combo<o7::kHalftone, O7STR_L_HALFTONE>();
inline constexpr UIMoleculeRecord kTrapping            = combo<o7::kTrapping, O7STR_L_TRAPPING>();
inline constexpr UIMoleculeRecord kBlackOverprint      = check<o7::kBlackOverprint, O7STR_L_BLACK_OVERPRINT>();
inline constexpr UIMoleculeRecord kSpotColours         = check<o7::kSpotColours, O7STR_L_SPOT_COLOURS>();
inline constexpr UIMoleculeRecord kTone                = combo<o7::kTone, O7STR_L_TONE>();
inline constexpr UIMoleculeRecord kRedEye              = check<o7::kRedEye, O7STR_L_RED_EYE>();
inline constexpr UIMoleculeRecord kNoiseReduction      = check<o7::kNoiseReduction, O7STR_L_NOISE_REDUCTION>();
inline constexpr UIMoleculeRecord kPhotoEnhancement    = combo<o7::kPhotoEnhancement, O7STR_L_PHOTO_ENHANCEMENT>();
inline constexpr UIMoleculeRecord kEdgeSmoothing       = check<o7::kEdgeSmoothing, O7STR_L_EDGE_SMOOTHING>();
inline constexpr UIMoleculeRecord kImageCompression    = combo<o7::kImageCompression, O7STR_L_IMAGE_COMPRESSION>();
inline constexpr UIMoleculeRecord kThickenLines        = check<o7::kThickenLines, O7STR_L_THICKEN_LINES>();
inline constexpr UIMoleculeRecord kGloss               = combo<o7::kGloss, O7STR_L_GLOSS>();
inline constexpr UIMoleculeRecord kSpecialColour       = combo<o7::kSpecialColour, O7STR_L_SPECIAL_COLOUR>();
inline constexpr UIMoleculeRecord kSpecialColourArea   = combo<o7::kSpecialColourArea, O7STR_L_SPECIAL_COLOUR_AREA>();
inline constexpr UIMoleculeRecord kSkinSmoothing       = check<o7::kSkinSmoothing, O7STR_L_SKIN_SMOOTHING>();
inline constexpr UIMoleculeRecord kFonts               = combo<o7::kFonts, O7STR_L_FONTS>();
inline constexpr UIMoleculeRecord kPrintAsPicture      = check<o7::kPrintAsPicture, O7STR_L_PRINT_AS_PICTURE>();
inline constexpr UIMoleculeRecord kErrorReport         = check<o7::kErrorReport, O7STR_L_ERROR_REPORT>();
inline constexpr UIMoleculeRecord kQuietMode           = check<o7::kQuietMode, O7STR_L_QUIET_MODE>();
inline constexpr UIMoleculeRecord kLightness           = slider<o7::kLightness, O7STR_L_LIGHTNESS, O7STR_U_DARKER, O7STR_U_LIGHTER, 25>();
inline constexpr UIMoleculeRecord kContrast            = slider<o7::kContrast, O7STR_L_CONTRAST, O7STR_U_LESS, O7STR_U_MORE, 25>();
inline constexpr UIMoleculeRecord kSaturation          = slider<o7::kSaturation, O7STR_L_SATURATION, O7STR_U_PALER, O7STR_U_STRONGER, 25>();
inline constexpr UIMoleculeRecord kBalanceCyanRed      = slider<o7::kBalanceCyanRed, O7STR_L_BALANCE_CYAN_RED, O7STR_U_CYAN, O7STR_U_RED, 25>();
inline constexpr UIMoleculeRecord kBalanceMagentaGreen = slider<o7::kBalanceMagentaGreen, O7STR_L_BALANCE_MAGENTA_GREEN, O7STR_U_MAGENTA, O7STR_U_GREEN, 25>();
inline constexpr UIMoleculeRecord kBalanceYellowBlue   = slider<o7::kBalanceYellowBlue, O7STR_L_BALANCE_YELLOW_BLUE, O7STR_U_YELLOW, O7STR_U_BLUE, 25>();
inline constexpr UIMoleculeRecord kShadows             = slider<o7::kShadows, O7STR_L_SHADOWS, O7STR_U_DARKER, O7STR_U_LIGHTER>();
inline constexpr UIMoleculeRecord kHighlights          = slider<o7::kHighlights, O7STR_L_HIGHLIGHTS, O7STR_U_DARKER, O7STR_U_LIGHTER>();
inline constexpr UIMoleculeRecord kSharpening          = slider<o7::kSharpening, O7STR_L_SHARPENING, O7STR_U_NONE, O7STR_U_STRONG>();
inline constexpr UIMoleculeRecord kTonerDensity        = slider<o7::kTonerDensity, O7STR_L_TONER_DENSITY, O7STR_U_LIGHTER, O7STR_U_DARKER, 1>();

// Watermarks, overlays and stamps
inline constexpr UIMoleculeRecord kWatermarkLayer      = combo<o7::kWatermarkLayer, O7STR_L_WATERMARK_LAYER>();
inline constexpr UIMoleculeRecord kOverlay             = combo<o7::kOverlay, O7STR_L_OVERLAY>();
inline constexpr UIMoleculeRecord kPageNumbers         = combo<o7::kPageNumbers, O7STR_L_PAGE_NUMBERS>();
inline constexpr UIMoleculeRecord kDateStamp           = combo<o7::kDateStamp, O7STR_L_DATE_STAMP>();
inline constexpr UIMoleculeRecord kOverlayName         = edit<o7::kOverlayName, O7STR_L_OVERLAY_NAME, 31>();
inline constexpr UIMoleculeRecord kFirstPageNumber     = number<o7::kFirstPageNumber, O7STR_L_FIRST_PAGE_NUMBER>();
inline constexpr UIMoleculeRecord kCaption             = edit<o7::kCaption, O7STR_L_CAPTION, 120>();

// Job
inline constexpr UIMoleculeRecord kSavedFolder         = combo<o7::kSavedFolder, O7STR_L_SAVED_FOLDER>();
inline constexpr UIMoleculeRecord kDeleteAfterPrinting = check<o7::kDeleteAfterPrinting, O7STR_L_DELETE_AFTER_PRINTING>();
inline constexpr UIMoleculeRecord kJobPriority         = combo<o7::kJobPriority, O7STR_L_JOB_PRIORITY>();
inline constexpr UIMoleculeRecord kAccountKind         = combo<o7::kAccountKind, O7STR_L_ACCOUNT_KIND>();
inline constexpr UIMoleculeRecord kEncryptJob          = check<o7::kEncryptJob, O7STR_L_ENCRYPT_JOB>();
inline constexpr UIMoleculeRecord kCopiesTogether      = combo<o7::kCopiesTogether, O7STR_L_COPIES_TOGETHER>();
inline constexpr UIMoleculeRecord kPin                 = pin<o7::kPin, O7STR_L_PIN, 10>();
inline constexpr UIMoleculeRecord kDelayHour           = spin<o7::kDelayHour, O7STR_L_DELAY_HOUR, O7STR_U_HOURS>();
inline constexpr UIMoleculeRecord kDelayMinute         = spin<o7::kDelayMinute, O7STR_L_DELAY_MINUTE, O7STR_U_MINUTES>();
inline constexpr UIMoleculeRecord kSavedName           = edit<o7::kSavedName, O7STR_L_SAVED_NAME, 64>();
inline constexpr UIMoleculeRecord kJobName             = edit<o7::kJobName, O7STR_L_JOB_NAME, 64>();
inline constexpr UIMoleculeRecord kHeldJobHours        = spin<o7::kHeldJobHours, O7STR_L_HELD_JOB_HOURS, O7STR_U_HOURS>();
inline constexpr UIMoleculeRecord kSampleInterval      = number<o7::kSampleInterval, O7STR_L_SAMPLE_INTERVAL>();
inline constexpr UIMoleculeRecord kOperatorNote        = edit<o7::kOperatorNote, O7STR_L_OPERATOR_NOTE, 250, 2>();
inline constexpr UIMoleculeRecord kAccountId           = edit<o7::kAccountId, O7STR_L_ACCOUNT_ID, 32>();
inline constexpr UIMoleculeRecord kUserId              = edit<o7::kUserId, O7STR_L_USER_ID, 64>();
inline constexpr UIMoleculeRecord kMessageAddress      = edit<o7::kMessageAddress, O7STR_L_MESSAGE_ADDRESS, 255>();
inline constexpr UIMoleculeRecord kFaxResolution       = combo<o7::kFaxResolution, O7STR_L_FAX_RESOLUTION>();
inline constexpr UIControlRecord kFaxSendTimeControls[] = {
    kRadio<o7::kFaxSendTime, o7::kFaxNow,     O7STR_L_FAX_NOW>,
    kRadio<o7::kFaxSendTime, o7::kFaxOffPeak, O7STR_L_FAX_OFF_PEAK>,
};
inline constexpr UIMoleculeRecord kFaxSendTime         = radioButtons(kFaxSendTimeControls);
inline constexpr UIMoleculeRecord kFaxConfirmation     = check<o7::kFaxConfirmation, O7STR_L_FAX_CONFIRMATION>();

// Photographs
inline constexpr UIMoleculeRecord kBorderExpansion     = combo<o7::kBorderExpansion, O7STR_L_BORDER_EXPANSION>();
inline constexpr UIMoleculeRecord kPhotoLayout         = combo<o7::kPhotoLayout, O7STR_L_PHOTO_LAYOUT>();
inline constexpr UIMoleculeRecord kFrame               = combo<o7::kFrame, O7STR_L_FRAME>();
inline constexpr UIMoleculeRecord kHighSpeed           = check<o7::kHighSpeed, O7STR_L_HIGH_SPEED>();
inline constexpr UIMoleculeRecord kBlackInk            = combo<o7::kBlackInk, O7STR_L_BLACK_INK>();
inline constexpr UIMoleculeRecord kPlatenGap           = combo<o7::kPlatenGap, O7STR_L_PLATEN_GAP>();
inline constexpr UIMoleculeRecord kCut                 = combo<o7::kCut, O7STR_L_CUT>();
inline constexpr UIMoleculeRecord kAutoRotate          = check<o7::kAutoRotate, O7STR_L_AUTO_ROTATE>();
inline constexpr UIMoleculeRecord kClearCoat           = combo<o7::kClearCoat, O7STR_L_CLEAR_COAT>();
inline constexpr UIMoleculeRecord kBorderWidth         = length<o7::kBorderWidth, O7STR_L_BORDER_WIDTH>();
inline constexpr UIMoleculeRecord kDryingTime          = spin<o7::kDryingTime, O7STR_L_DRYING_TIME, O7STR_U_SECONDS>();

// Drawings
inline constexpr UIMoleculeRecord kRollRotation        = combo<o7::kRollRotation, O7STR_L_ROLL_ROTATION>();
inline constexpr UIMoleculeRecord kNesting             = combo<o7::kNesting, O7STR_L_NESTING>();
inline constexpr UIMoleculeRecord kCutLines            = check<o7::kCutLines, O7STR_L_CUT_LINES>();
inline constexpr UIMoleculeRecord kLineWeight          = combo<o7::kLineWeight, O7STR_L_LINE_WEIGHT>();
inline constexpr UIMoleculeRecord kPens                = combo<o7::kPens, O7STR_L_PENS>();
inline constexpr UIMoleculeRecord kDrawingScale        = combo<o7::kDrawingScale, O7STR_L_DRAWING_SCALE>();
inline constexpr UIMoleculeRecord kSheetMargins        = combo<o7::kSheetMargins, O7STR_L_SHEET_MARGINS>();
inline constexpr UIMoleculeRecord kFoldProgram         = combo<o7::kFoldProgram, O7STR_L_FOLD_PROGRAM>();
inline constexpr UIMoleculeRecord kTitleBlock          = combo<o7::kTitleBlock, O7STR_L_TITLE_BLOCK>();
inline constexpr UIMoleculeRecord kCropToContent       = check<o7::kCropToContent, O7STR_L_CROP_TO_CONTENT>();
inline constexpr UIMoleculeRecord kInkSaving           = check<o7::kInkSaving, O7STR_L_INK_SAVING>();
inline constexpr UIMoleculeRecord kHiddenLines         = check<o7::kHiddenLines, O7STR_L_HIDDEN_LINES>();
inline constexpr UIMoleculeRecord kNestingWait         = spin<o7::kNestingWait, O7STR_L_NESTING_WAIT, O7STR_U_MINUTES>();
inline constexpr UIMoleculeRecord kPageSpacing         = length<o7::kPageSpacing, O7STR_L_PAGE_SPACING>();
inline constexpr UIMoleculeRecord kLeadingStrip        = length<o7::kLeadingStrip, O7STR_L_LEADING_STRIP>();
inline constexpr UIMoleculeRecord kTrailingStrip       = length<o7::kTrailingStrip, O7STR_L_TRAILING_STRIP>();

// Device settings
inline constexpr UIMoleculeRecord kLargeTray           = check<o7::kInstalledLargeTray, O7STR_L_LARGE_TRAY>();
inline constexpr UIMoleculeRecord kFaxBoard            = check<o7::kInstalledFax, O7STR_L_FAX_BOARD>();
inline constexpr UIMoleculeRecord kMemory              = combo<o7::kInstalledMemory, O7STR_L_MEMORY>();
inline constexpr UIMoleculeRecord kInserter            = check<o7::kInstalledInserter, O7STR_L_INSERTER>();
inline constexpr UIMoleculeRecord kStackers            = combo<o7::kInstalledStackers, O7STR_L_STACKERS>();
inline constexpr UIMoleculeRecord kTrimmer             = combo<o7::kInstalledTrimmer, O7STR_L_TRIMMER>();
inline constexpr UIMoleculeRecord kBinder              = combo<o7::kInstalledBinder, O7STR_L_BINDER>();
inline constexpr UIMoleculeRecord kPunchDie            = combo<o7::kInstalledPunchDie, O7STR_L_PUNCH_DIE>();
inline constexpr UIMoleculeRecord kCreaser             = check<o7::kInstalledCreaser, O7STR_L_CREASER>();
inline constexpr UIMoleculeRecord kSpecialColourStation = combo<o7::kInstalledSpecialColour, O7STR_L_SPECIAL_COLOUR_STATION>();
inline constexpr UIMoleculeRecord kColourController    = check<o7::kInstalledColourController, O7STR_L_COLOUR_CONTROLLER>();
inline constexpr UIMoleculeRecord kColourSensor        = check<o7::kInstalledColourSensor, O7STR_L_COLOUR_SENSOR>();
inline constexpr UIMoleculeRecord kRolls               = combo<o7::kInstalledRolls, O7STR_L_ROLLS>();
inline constexpr UIMoleculeRecord kCutter              = check<o7::kInstalledCutter, O7STR_L_CUTTER>();
inline constexpr UIMoleculeRecord kWideStacker         = check<o7::kInstalledWideStacker, O7STR_L_WIDE_STACKER>();
inline constexpr UIMoleculeRecord kEncryptionKit       = check<o7::kInstalledEncryptionKit, O7STR_L_ENCRYPTION_KIT>();
inline constexpr UIMoleculeRecord kWireless            = check<o7::kInstalledWireless, O7STR_L_WIRELESS>();
inline constexpr UIMoleculeRecord kCardReader          = check<o7::kInstalledCardReader, O7STR_L_CARD_READER>();
inline constexpr UIControlRecord kPaperRegionControls[] = {
    {.kind = UIControlKind::Text, .feature = o7::kPaperRegion, .label = O7STR_L_PAPER_REGION},
    kRadio<o7::kPaperRegion, o7::kRegionMetric, O7STR_L_REGION_METRIC>,
    kRadio<o7::kPaperRegion, o7::kRegionInch,   O7STR_L_REGION_INCH>,
};
inline constexpr UIMoleculeRecord kPaperRegion         = radioButtons(kPaperRegionControls);
inline constexpr UIMoleculeRecord kTray1Size           = combo<o7::kTray1Size, O7STR_L_TRAY_1_SIZE>();
inline constexpr UIMoleculeRecord kTray1Type           = combo<o7::kTray1Type, O7STR_L_TRAY_1_TYPE>();
inline constexpr UIMoleculeRecord kTray2Size           = combo<o7::kTray2Size, O7STR_L_TRAY_2_SIZE>();
inline constexpr UIMoleculeRecord kTray2Type           = combo<o7::kTray2Type, O7STR_L_TRAY_2_TYPE>();
inline constexpr UIMoleculeRecord kTray3Size           = combo<o7::kTray3Size, O7STR_L_TRAY_3_SIZE>();
inline constexpr UIMoleculeRecord kTray3Type           = combo<o7::kTray3Type, O7STR_L_TRAY_3_TYPE>();
inline constexpr UIMoleculeRecord kTray4Size           = combo<o7::kTray4Size, O7STR_L_TRAY_4_SIZE>();
inline constexpr UIMoleculeRecord kTray4Type           = combo<o7::kTray4Type, O7STR_L_TRAY_4_TYPE>();
inline constexpr UIMoleculeRecord kBypassPrompt        = check<o7::kBypassPrompt, O7STR_L_BYPASS_PROMPT>();
inline constexpr UIMoleculeRecord kColourPolicy        = combo<o7::kColourPolicy, O7STR_L_COLOUR_POLICY>();
inline constexpr UIMoleculeRecord kSidesPolicy         = combo<o7::kSidesPolicy, O7STR_L_SIDES_POLICY>();
inline constexpr UIMoleculeRecord kHoldPolicy          = combo<o7::kHoldPolicy, O7STR_L_HOLD_POLICY>();
inline constexpr UIMoleculeRecord kBannerPolicy        = combo<o7::kBannerPolicy, O7STR_L_BANNER_POLICY>();
inline constexpr UIMoleculeRecord kAccountRequired     = check<o7::kAccountRequired, O7STR_L_ACCOUNT_REQUIRED>();
inline constexpr UIMoleculeRecord kRoll1Type           = combo<o7::kRoll1Type, O7STR_L_ROLL_1_TYPE>();
inline constexpr UIMoleculeRecord kRoll2Type           = combo<o7::kRoll2Type, O7STR_L_ROLL_2_TYPE>();
inline constexpr UIMoleculeRecord kSquareSpineUnit     = check<o7::kInstalledSquareSpineUnit, O7STR_L_SQUARE_SPINE_UNIT>();
inline constexpr UIMoleculeRecord kFeedModule          = combo<o7::kInstalledFeedModule, O7STR_L_FEED_MODULE>();
inline constexpr UIMoleculeRecord kStorageCard         = check<o7::kInstalledStorageCard, O7STR_L_STORAGE_CARD>();
inline constexpr UIMoleculeRecord kMatteInk            = check<o7::kInstalledMatteInk, O7STR_L_MATTE_INK>();
inline constexpr UIMoleculeRecord kBoardFeed           = check<o7::kInstalledBoardFeed, O7STR_L_BOARD_FEED>();
inline constexpr UIMoleculeRecord kLongSheetFeed       = check<o7::kInstalledLongSheetFeed, O7STR_L_LONG_SHEET_FEED>();
inline constexpr UIMoleculeRecord kDeviceLocation      = edit<o7::kDeviceLocation, O7STR_L_DEVICE_LOCATION, 64>();
inline constexpr UIMoleculeRecord kDeviceContact       = edit<o7::kDeviceContact, O7STR_L_DEVICE_CONTACT, 64>();
inline constexpr UIMoleculeRecord kStatusInterval      = spin<o7::kStatusInterval, O7STR_L_STATUS_INTERVAL, O7STR_U_SECONDS>();
inline constexpr UIMoleculeRecord kSleepMinutes        = spin<o7::kSleepMinutes, O7STR_L_SLEEP_MINUTES, O7STR_U_MINUTES>();
inline constexpr UIMoleculeRecord kLowSupplyWarning    = spin<o7::kLowSupplyWarning, O7STR_L_LOW_SUPPLY_WARNING, O7STR_U_PERCENT>();
inline constexpr UIMoleculeRecord kCalibrationDays     = spin<o7::kCalibrationDays, O7STR_L_CALIBRATION_DAYS, O7STR_U_DAYS>();
inline constexpr UIMoleculeRecord kRoll1Width          = length<o7::kRoll1Width, O7STR_L_ROLL_1_WIDTH>();
inline constexpr UIMoleculeRecord kRoll2Width          = length<o7::kRoll2Width, O7STR_L_ROLL_2_WIDTH>();
// clang-format on

} // namespace o7::settings
