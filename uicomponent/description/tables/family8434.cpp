// The wide-format device for drawings: rolls instead of trays, scales instead of pages per sheet.
#include "rootrecords.h"
#include "sharedgroups.h"

namespace {

using namespace o7;
using namespace o7::shared;

// Page "Paper/Output"
constexpr UIMoleculeRecord kPaperGroup[] = {s::kPaperSize, s::kCustomWidth, s::kCustomLength,
                                            s::kPaperType, s::kPaperTray};
constexpr UIMoleculeRecord kOutputGroup[] = {s::kOutputBin, s::kCutLines};
constexpr UIMoleculeRecord kRollGroup[] = {s::kCut, s::kRollRotation, s::kNesting, s::kNestingWait};
constexpr UIMoleculeRecord kPaperLeft[] = {group(O7STR_G_PAPER, kPaperGroup),
                                           group(O7STR_G_OUTPUT, kOutputGroup)};
constexpr UIMoleculeRecord kPaperRight[] = {group(O7STR_G_JOB, kJobGroup),
                                            group(O7STR_G_ROLL, kRollGroup)};
constexpr UIColumnRecord kPaperColumns[] = {left(kPaperLeft), right(kPaperRight)};
constexpr UIContainerRecord kPaperPage = page(1, O7STR_TAB_PAPER, kPaperColumns);

// Page "Layout"
constexpr UIMoleculeRecord kPageLayoutGroup[] = {s::kOrientation, s::kScaling, s::kScalePercent,
                                                 s::kTargetSize, s::kDrawingScale};
constexpr UIMoleculeRecord kPagesGroup[] = {s::kSheetMargins, s::kCropMarks,   s::kBleed,
                                            s::kPoster,       s::kMirrorImage, s::kCropToContent,
                                            s::kRotate180};
constexpr UIMoleculeRecord kLayoutLeft[] = {group(O7STR_G_PAGE_LAYOUT, kPageLayoutGroup)};
constexpr UIMoleculeRecord kLayoutRight[] = {group(O7STR_G_PAGES, kPagesGroup)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutLeft), right(kLayoutRight)};
constexpr UIContainerRecord kLayoutPage = page(2, O7STR_TAB_LAYOUT, kLayoutColumns);

// Page "Drawing"
constexpr UIMoleculeRecord kLinesGroup[] = {s::kLineWeight, s::kPens, s::kThickenLines,
                                            s::kHiddenLines, text<O7STR_T_LINES, 2>()};
constexpr UIMoleculeRecord kStripsGroup[] = {s::kPageSpacing, s::kLeadingStrip, s::kTrailingStrip};
constexpr UIMoleculeRecord kFoldingGroup[] = {s::kFoldProgram, s::kTitleBlock};
constexpr UIMoleculeRecord kWatermarkGroup[] = {s::kWatermarkList, s::kWatermarkLayer,
                                                s::kDateStamp};
constexpr UIMoleculeRecord kDrawingLeft[] = {group(O7STR_G_LINES, kLinesGroup),
                                             group(O7STR_G_STRIPS, kStripsGroup)};
constexpr UIMoleculeRecord kDrawingRight[] = {group(O7STR_G_FOLDING, kFoldingGroup),
                                              group(O7STR_G_WATERMARK, kWatermarkGroup)};
constexpr UIColumnRecord kDrawingColumns[] = {left(kDrawingLeft), right(kDrawingRight)};
constexpr UIContainerRecord kDrawingPage = page(3, O7STR_TAB_DRAWING, kDrawingColumns);

// Page "Image"
constexpr UIMoleculeRecord kQualityGroup[] = {s::kPrintQuality, s::kResolution,    s::kOptimiseFor,
                                              s::kSharpening,   s::kDryingTime,    s::kInkSaving,
                                              s::kPureBlack,    s::kPrintAsPicture};
constexpr UIMoleculeRecord kColourGroup[] = {s::kColourMode, s::kLightness, s::kContrast,
                                             s::kSaturation};
constexpr UIMoleculeRecord kColourManagementGroup[] = {s::kColourCorrection, s::kRenderingIntent};
constexpr UIMoleculeRecord kImageLeft[] = {group(O7STR_G_QUALITY, kQualityGroup)};
constexpr UIMoleculeRecord kImageRight[] = {
    group(O7STR_G_COLOUR, kColourGroup), group(O7STR_G_COLOUR_MANAGEMENT, kColourManagementGroup)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageLeft), right(kImageRight)};
constexpr UIContainerRecord kImagePage = page(4, O7STR_TAB_IMAGE, kImageColumns);

// Page "Job Options"
constexpr UIMoleculeRecord kJobOptionsGroup[] = {s::kJobTypeList, s::kJobName, s::kBannerSheet,
                                                 s::kEncryptJob};
constexpr UIMoleculeRecord kHeldJobsGroup[] = {s::kPin, s::kDelayHour, s::kDelayMinute,
                                               s::kSavedName};
constexpr UIMoleculeRecord kJobLeft[] = {group(O7STR_G_JOB, kJobOptionsGroup)};
constexpr UIMoleculeRecord kJobRight[] = {group(O7STR_G_HELD_JOBS, kHeldJobsGroup),
                                          group(O7STR_G_TRACKING, kMessagesGroup)};
constexpr UIColumnRecord kJobColumns[] = {left(kJobLeft), right(kJobRight)};
constexpr UIContainerRecord kJobPage = jobPage(5, kJobColumns, kJobFeatures);

// Page "Advanced", and "Policies" in its place where the administrator sets the defaults
constexpr UIMoleculeRecord kAccountsLeft[] = {group(O7STR_G_ACCOUNTING, kAccountsGroup)};
constexpr UIMoleculeRecord kAdvancedRight[] = {group(O7STR_G_UNITS, kUnitsGroup),
                                               group(O7STR_G_APPLY, kApplyGroup)};
constexpr UIColumnRecord kAdvancedColumns[] = {left(kAccountsLeft), right(kAdvancedRight)};
constexpr UIMoleculeRecord kPolicyLeft[] = {group(O7STR_G_UNITS, kUnitsGroup)};
constexpr UIColumnRecord kPolicyColumns[] = {left(kPolicyLeft), right(kApplyOnly)};
constexpr UIContainerRecord kAdvancedPage = page(6, O7STR_TAB_ADVANCED, kAdvancedColumns);
constexpr UIContainerRecord kPolicyPage = page(7, O7STR_TAB_POLICY, kPolicyColumns);

// Device settings
constexpr UIMoleculeRecord kInstalledGroup[] = {s::kRolls, s::kCutter, s::kWideStacker,
                                                s::kFoldingUnit};
constexpr UIMoleculeRecord kControllerGroup[] = {s::kMemory, s::kHardDisk,
                                                 text<O7STR_T_CONTROLLER, 2>()};
constexpr UIMoleculeRecord kAccountGroup[] = {s::kAccountRequired};
constexpr UIMoleculeRecord kInstalledLeft[] = {group(O7STR_G_INSTALLED, kInstalledGroup),
                                               group(O7STR_G_CONTROLLER, kControllerGroup)};
constexpr UIMoleculeRecord kInstalledRight[] = {group(O7STR_G_CONNECTION, kConnectionGroup),
                                                group(O7STR_G_SECURITY, kSecurityGroup),
                                                group(O7STR_G_ACCOUNTING, kAccountGroup)};
constexpr UIColumnRecord kInstalledColumns[] = {left(kInstalledLeft), right(kInstalledRight)};
constexpr UIContainerRecord kInstalledPage = devicePage(1, O7STR_TAB_INSTALLED, kInstalledColumns);

constexpr UIMoleculeRecord kRollContentsGroup[] = {s::kRoll1Width, s::kRoll1Type, s::kRoll2Width,
                                                   s::kRoll2Type, text<O7STR_T_ROLLS, 2>()};
constexpr UIMoleculeRecord kSuppliesGroup[] = {s::kLowSupplyWarning, s::kCalibrationDays};
constexpr UIMoleculeRecord kRollsLeft[] = {group(O7STR_G_ROLL, kRollContentsGroup),
                                           group(O7STR_G_SUPPLIES, kSuppliesGroup)};
constexpr UIColumnRecord kRollsColumns[] = {left(kRollsLeft), right(kRegionOnly)};
constexpr UIContainerRecord kRollsPage = devicePage(2, O7STR_TAB_ROLL, kRollsColumns);

// Dialogs
constexpr UIMoleculeRecord kQuickPaperGroup[] = {s::kPaperSize, s::kPaperTray, s::kOrientation,
                                                 s::kScaling, s::kCopies};
constexpr UIMoleculeRecord kQuickOutputGroup[] = {s::kColourMode, s::kPrintQualityList, s::kCut,
                                                  s::kJobType};
constexpr UIMoleculeRecord kQuickLeft[] = {group(O7STR_G_PAPER, kQuickPaperGroup)};
constexpr UIMoleculeRecord kQuickRight[] = {group(O7STR_G_OUTPUT, kQuickOutputGroup)};
constexpr UIColumnRecord kQuickColumns[] = {left(kQuickLeft), right(kQuickRight)};
constexpr UIContainerRecord kDialogs[] = {quick(183, kQuickColumns), kTrackingOffDialog};

// The four interfaces
constexpr UIContainerRecord kPreferences[] = {kPaperPage, kLayoutPage, kDrawingPage,
                                              kImagePage, kJobPage,    kAdvancedPage};
constexpr UIContainerRecord kDevice[] = {kInstalledPage, kRollsPage};
constexpr UIContainerRecord kDefaults[] = {kPaperPage, kLayoutPage, kDrawingPage,
                                           kImagePage, kJobPage,    kPolicyPage};

constexpr UIRootRecord kRoots[] = {
    preferences(DataModelIds::kValueFamily8434, kPreferences, kDialogs),
    deviceSettings(DataModelIds::kValueFamily8434, kDevice, kDialogs),
    compact(DataModelIds::kValueFamily8434, kDialogs),
    defaults(DataModelIds::kValueFamily8434, kDefaults, kDialogs),
};

} // namespace

constexpr o7::FamilyRecords o7::kFamily8434 = kRoots;
