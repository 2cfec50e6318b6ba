// The office colour device, in all four modes. Pages are listed as people need them: most used
// first, and a setting stands at the same place in every mode that shows it.
#include "rootrecords.h"
#include "sharedgroups.h"

namespace {

using namespace o7;
using namespace o7::shared;

// Page "Paper/Output"
constexpr UIMoleculeRecord kOutputGroup[] = {s::kStaple, s::kOutputBin};
constexpr UIMoleculeRecord kPaperLeft[] = {group(O7STR_G_PAPER, kPaperGroup),
                                           group(O7STR_G_JOB, kJobGroup)};
constexpr UIMoleculeRecord kPaperRight[] = {group(O7STR_G_SIDES_COLOUR, kSidesColourGroup),
                                            group(O7STR_G_OUTPUT, kOutputGroup)};
constexpr UIColumnRecord kPaperColumns[] = {left(kPaperLeft), right(kPaperRight)};
constexpr UIContainerRecord kPaperPage = page(1, O7STR_TAB_PAPER, kPaperColumns);

// Page "Layout"
constexpr UIMoleculeRecord kPageLayoutGroup[] = {s::kOrientation, s::kPagesPerSheet,
                                                 s::kPageBorders, s::kScaling};
constexpr UIMoleculeRecord kBookletGroup[] = {s::kBooklet, text<O7STR_T_BOOKLET, 2>()};
constexpr UIMoleculeRecord kFinishingGroup[] = {s::kBindingEdge, s::kStaple, s::kPunch, s::kFold,
                                                s::kOutputBin};
constexpr UIMoleculeRecord kLayoutLeft[] = {group(O7STR_G_PAGE_LAYOUT, kPageLayoutGroup),
                                            group(O7STR_G_BOOKLET, kBookletGroup)};
constexpr UIMoleculeRecord kLayoutRight[] = {group(O7STR_G_FINISHING, kFinishingGroup)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutLeft), right(kLayoutRight)};
constexpr UIContainerRecord kLayoutPage = page(2, O7STR_TAB_LAYOUT, kLayoutColumns);

// Page "Image"
constexpr UIMoleculeRecord kQualityGroup[] = {s::kPrintQuality, s::kResolution,
                                              s::kOptimiseFor,  s::kEdgeSmoothing,
                                              s::kThickenLines, text<O7STR_T_QUALITY, 2>()};
constexpr UIMoleculeRecord kColourGroup[] = {s::kColourMode, s::kTonerSaving,
                                             text<O7STR_T_TONER, 2>()};
constexpr UIMoleculeRecord kColourManagementGroup[] = {s::kColourCorrection, s::kRenderingIntent,
                                                       s::kPureBlack};
constexpr UIMoleculeRecord kImageLeft[] = {group(O7STR_G_QUALITY, kQualityGroup)};
constexpr UIMoleculeRecord kImageRight[] = {
    group(O7STR_G_COLOUR, kColourGroup), group(O7STR_G_COLOUR_MANAGEMENT, kColourManagementGroup)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageLeft), right(kImageRight)};
constexpr UIContainerRecord kImagePage = page(3, O7STR_TAB_IMAGE, kImageColumns);

// Page "Watermark"
constexpr UIMoleculeRecord kWatermarkGroup[] = {s::kWatermark, s::kWatermarkFirst,
                                                s::kWatermarkLayer, text<O7STR_T_WATERMARK, 2>()};
constexpr UIMoleculeRecord kBannerGroup[] = {s::kBannerSheet, text<O7STR_T_BANNER, 2>()};
constexpr UIMoleculeRecord kCoversGroup[] = {s::kCovers, s::kCoverTray, text<O7STR_T_COVERS, 2>()};
constexpr UIMoleculeRecord kStampsGroup[] = {s::kOverlay, s::kPageNumbers};
constexpr UIMoleculeRecord kWatermarkLeft[] = {group(O7STR_G_WATERMARK, kWatermarkGroup),
                                               group(O7STR_G_BANNER, kBannerGroup)};
constexpr UIMoleculeRecord kWatermarkRight[] = {group(O7STR_G_COVERS, kCoversGroup),
                                                group(O7STR_G_STAMPS, kStampsGroup)};
constexpr UIColumnRecord kWatermarkColumns[] = {left(kWatermarkLeft), right(kWatermarkRight)};
constexpr UIContainerRecord kWatermarkPage = page(4, O7STR_TAB_WATERMARK, kWatermarkColumns);

// Page "Job Options"
constexpr UIMoleculeRecord kJobOptionsGroup[] = {s::kJobType, text<O7STR_T_JOB_TYPE, 2>(),
                                                 s::kCollate, s::kNotifyWhenDone, s::kEncryptJob};
constexpr UIMoleculeRecord kSavedJobsGroup[] = {s::kSavedFolder, s::kDeleteAfterPrinting};
constexpr UIMoleculeRecord kJobLeft[] = {group(O7STR_G_JOB, kJobOptionsGroup),
                                         group(O7STR_G_SAVED_JOBS, kSavedJobsGroup)};
constexpr UIColumnRecord kJobColumns[] = {left(kJobLeft), right(kAccountsAndTracking)};
constexpr UIContainerRecord kJobPage = jobPage(5, kJobColumns, kJobFeatures);

// Page "Advanced", and "Policies" in its place where the administrator sets the defaults
constexpr UIMoleculeRecord kPagesGroup[] = {s::kMirrorImage, s::kEdgeToEdge, s::kSkipBlankPages,
                                            s::kReverseOrder, s::kRotate180};
constexpr UIMoleculeRecord kAdvancedLeft[] = {group(O7STR_G_PAGES, kPagesGroup),
                                              group(O7STR_G_UNITS, kUnitsGroup)};
constexpr UIMoleculeRecord kAdvancedRight[] = {group(O7STR_G_APPLY, kApplyGroup),
                                               group(O7STR_G_DATA, kDataGroup)};
constexpr UIColumnRecord kAdvancedColumns[] = {left(kAdvancedLeft), right(kAdvancedRight)};
constexpr UIColumnRecord kPolicyColumns[] = {left(kAdvancedLeft), right(kApplyAndConnection)};
constexpr UIContainerRecord kAdvancedPage = page(6, O7STR_TAB_ADVANCED, kAdvancedColumns);
constexpr UIContainerRecord kPolicyPage = page(7, O7STR_TAB_POLICY, kPolicyColumns);

// Device settings: "Installed Options"
constexpr UIMoleculeRecord kHandlingGroup[] = {s::kTrays, s::kDuplexUnit, s::kLargeTray};
constexpr UIMoleculeRecord kControllerGroup[] = {s::kMemory, s::kHardDisk, s::kFaxBoard,
                                                 text<O7STR_T_CONTROLLER, 2>()};
constexpr UIMoleculeRecord kInstalledFinishingGroup[] = {
    s::kFinisher, s::kPunchKit, s::kFoldingUnit, text<O7STR_T_FINISHING, 2>()};
constexpr UIMoleculeRecord kInstalledLeft[] = {group(O7STR_G_PAPER_HANDLING, kHandlingGroup),
                                               group(O7STR_G_CONTROLLER, kControllerGroup)};
constexpr UIMoleculeRecord kInstalledRight[] = {group(O7STR_G_FINISHING, kInstalledFinishingGroup),
                                                group(O7STR_G_SECURITY, kSecurityGroup)};
constexpr UIColumnRecord kInstalledColumns[] = {left(kInstalledLeft), right(kInstalledRight)};
constexpr UIContainerRecord kInstalledPage = page(1, O7STR_TAB_INSTALLED, kInstalledColumns);

// Dialogs
constexpr UIMoleculeRecord kQuickPaperGroup[] = {s::kPaperSize, s::kPaperTray, s::kSides,
                                                 s::kOrientation};
constexpr UIMoleculeRecord kQuickOutputGroup[] = {s::kColourMode, s::kPrintQuality, s::kStaple,
                                                  s::kJobType};
constexpr UIMoleculeRecord kQuickLeft[] = {group(O7STR_G_PAPER, kQuickPaperGroup)};
constexpr UIMoleculeRecord kQuickRight[] = {group(O7STR_G_OUTPUT, kQuickOutputGroup)};
constexpr UIColumnRecord kQuickColumns[] = {left(kQuickLeft), right(kQuickRight)};
constexpr UIContainerRecord kDialogs[] = {quick(162, kQuickColumns), kTrackingOffDialog};

// The four interfaces
constexpr UIContainerRecord kPreferences[] = {kPaperPage,     kLayoutPage, kImagePage,
                                              kWatermarkPage, kJobPage,    kAdvancedPage};
constexpr UIContainerRecord kDevice[] = {kInstalledPage, kTraysPage, kLinkPage, kPoliciesPage};
constexpr UIContainerRecord kDefaults[] = {kPaperPage,     kLayoutPage, kImagePage,
                                           kWatermarkPage, kJobPage,    kPolicyPage};

constexpr UIRootRecord kRoots[] = {
    preferences(DataModelIds::kValueFamily8430, kPreferences, kDialogs),
    deviceSettings(DataModelIds::kValueFamily8430, kDevice, kDialogs),
    compact(DataModelIds::kValueFamily8430, kDialogs),
    defaults(DataModelIds::kValueFamily8430, kDefaults, kDialogs),
};

} // namespace

constexpr o7::FamilyRecords o7::kFamily8430 = kRoots;
