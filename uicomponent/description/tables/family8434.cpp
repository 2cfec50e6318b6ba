// The wide-format device for drawings: rolls instead of trays, scales instead of pages per sheet.
#include "rootrecords.h"
#include "sharedgroups.h"

namespace {

using namespace o7;
using namespace o7::shared;

// Page "Paper/Output"
constexpr UIMoleculeRecord kJobTypeGroup[] = {s::kJobType};
constexpr UIMoleculeRecord kRollGroup[] = {s::kCut, s::kRollRotation, s::kNesting};
constexpr UIMoleculeRecord kOutputGroup[] = {s::kOutputBin, s::kCutLines};
constexpr UIMoleculeRecord kPaperLeft[] = {group(O7STR_G_PAPER, kPaperGroup),
                                           group(O7STR_G_JOB, kJobTypeGroup)};
constexpr UIMoleculeRecord kPaperRight[] = {group(O7STR_G_ROLL, kRollGroup),
                                            group(O7STR_G_OUTPUT, kOutputGroup)};
constexpr UIColumnRecord kPaperColumns[] = {left(kPaperLeft), right(kPaperRight)};
constexpr UIContainerRecord kPaperPage = page(1, O7STR_TAB_PAPER, kPaperColumns);

// Page "Layout"
constexpr UIMoleculeRecord kPageLayoutGroup[] = {s::kOrientation, s::kScaling, s::kTargetSize,
                                                 s::kDrawingScale};
constexpr UIMoleculeRecord kPagesGroup[] = {s::kSheetMargins, s::kCropMarks,     s::kPoster,
                                            s::kMirrorImage,  s::kCropToContent, s::kRotate180};
constexpr UIMoleculeRecord kLayoutLeft[] = {group(O7STR_G_PAGE_LAYOUT, kPageLayoutGroup)};
constexpr UIMoleculeRecord kLayoutRight[] = {group(O7STR_G_PAGES, kPagesGroup)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutLeft), right(kLayoutRight)};
constexpr UIContainerRecord kLayoutPage = page(2, O7STR_TAB_LAYOUT, kLayoutColumns);

// Page "Drawing"
constexpr UIMoleculeRecord kLinesGroup[] = {s::kLineWeight, s::kPens, s::kThickenLines,
                                            s::kHiddenLines, text<O7STR_T_LINES, 2>()};
constexpr UIMoleculeRecord kFoldingGroup[] = {s::kFoldProgram, s::kTitleBlock};
constexpr UIMoleculeRecord kDrawingLeft[] = {group(O7STR_G_LINES, kLinesGroup)};
constexpr UIMoleculeRecord kDrawingRight[] = {group(O7STR_G_FOLDING, kFoldingGroup)};
constexpr UIColumnRecord kDrawingColumns[] = {left(kDrawingLeft), right(kDrawingRight)};
constexpr UIContainerRecord kDrawingPage = page(3, O7STR_TAB_DRAWING, kDrawingColumns);

// Page "Image"
constexpr UIMoleculeRecord kQualityGroup[] = {s::kPrintQuality, s::kResolution, s::kOptimiseFor,
                                              s::kInkSaving};
constexpr UIMoleculeRecord kColourGroup[] = {s::kColourMode, s::kColourCorrection,
                                             s::kRenderingIntent, s::kPureBlack};
constexpr UIMoleculeRecord kImageLeft[] = {group(O7STR_G_QUALITY, kQualityGroup)};
constexpr UIMoleculeRecord kImageRight[] = {group(O7STR_G_COLOUR, kColourGroup)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageLeft), right(kImageRight)};
constexpr UIContainerRecord kImagePage = page(4, O7STR_TAB_IMAGE, kImageColumns);

// Page "Job Options", and "Policies" in its place where the administrator sets the defaults
constexpr UIMoleculeRecord kWatermarkGroup[] = {s::kWatermark, s::kWatermarkLayer};
constexpr UIMoleculeRecord kStampsGroup[] = {s::kDateStamp, s::kBannerSheet};
constexpr UIMoleculeRecord kJobLeft[] = {group(O7STR_G_WATERMARK, kWatermarkGroup),
                                         group(O7STR_G_STAMPS, kStampsGroup)};
constexpr UIColumnRecord kJobColumns[] = {left(kJobLeft), right(kAccountsAndTracking)};
constexpr UIContainerRecord kJobPage = jobPage(5, kJobColumns, kJobFeatures);
constexpr UIColumnRecord kPolicyColumns[] = {left(kUnitsAndRegion), right(kApplyAndConnection)};
constexpr UIContainerRecord kPolicyPage = page(6, O7STR_TAB_POLICY, kPolicyColumns);

// Device settings
constexpr UIMoleculeRecord kInstalledGroup[] = {s::kRolls, s::kCutter, s::kWideStacker,
                                                s::kFoldingUnit};
constexpr UIMoleculeRecord kControllerGroup[] = {s::kMemory, s::kHardDisk,
                                                 text<O7STR_T_CONTROLLER, 2>()};
constexpr UIMoleculeRecord kInstalledLeft[] = {group(O7STR_G_INSTALLED, kInstalledGroup),
                                               group(O7STR_G_CONTROLLER, kControllerGroup)};
constexpr UIMoleculeRecord kInstalledRight[] = {group(O7STR_G_CONNECTION, kConnectionGroup),
                                                group(O7STR_G_SECURITY, kSecurityGroup)};
constexpr UIColumnRecord kInstalledColumns[] = {left(kInstalledLeft), right(kInstalledRight)};
constexpr UIContainerRecord kInstalledPage = page(1, O7STR_TAB_INSTALLED, kInstalledColumns);

constexpr UIMoleculeRecord kRollContentsGroup[] = {s::kRoll1Type, s::kRoll2Type,
                                                   text<O7STR_T_ROLLS, 2>()};
constexpr UIMoleculeRecord kRollsLeft[] = {group(O7STR_G_ROLL, kRollContentsGroup)};
constexpr UIColumnRecord kRollsColumns[] = {left(kRollsLeft), right(kUnitsAndRegion)};
constexpr UIContainerRecord kRollsPage = page(2, O7STR_TAB_ROLL, kRollsColumns);

// Dialogs
constexpr UIMoleculeRecord kQuickPaperGroup[] = {s::kPaperSize, s::kPaperTray, s::kOrientation,
                                                 s::kScaling};
constexpr UIMoleculeRecord kQuickOutputGroup[] = {s::kColourMode, s::kPrintQuality, s::kCut,
                                                  s::kJobType};
constexpr UIMoleculeRecord kQuickLeft[] = {group(O7STR_G_PAPER, kQuickPaperGroup)};
constexpr UIMoleculeRecord kQuickRight[] = {group(O7STR_G_OUTPUT, kQuickOutputGroup)};
constexpr UIColumnRecord kQuickColumns[] = {left(kQuickLeft), right(kQuickRight)};
constexpr UIContainerRecord kDialogs[] = {quick(162, kQuickColumns), kTrackingOffDialog};

// The four interfaces
constexpr UIContainerRecord kPreferences[] = {kPaperPage, kLayoutPage, kDrawingPage, kImagePage,
                                              kJobPage};
constexpr UIContainerRecord kDevice[] = {kInstalledPage, kRollsPage};
constexpr UIContainerRecord kDefaults[] = {kPaperPage, kLayoutPage, kDrawingPage, kPolicyPage};

constexpr UIRootRecord kRoots[] = {
    preferences(DataModelIds::kValueFamily8434, kPreferences, kDialogs),
    deviceSettings(DataModelIds::kValueFamily8434, kDevice, kDialogs),
    compact(DataModelIds::kValueFamily8434, kDialogs),
    defaults(DataModelIds::kValueFamily8434, kDefaults, kDialogs),
};

} // namespace

constexpr o7::FamilyRecords o7::kFamily8434 = kRoots;
