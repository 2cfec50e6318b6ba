// The office colour device, in all four modes. Pages are listed as people need them: most used
// first, and a setting stands at the same place in every mode that shows it.
#include "rootrecords.h"
#include "sharedgroups.h"

namespace {

using namespace o7;
using namespace o7::shared;

// Page "Paper/Output": what most people need
constexpr UIMoleculeRecord kPaperGroup[] = {s::kPaperSize, s::kCustomWidth, s::kCustomLength,
                                            s::kPaperType, s::kPaperWeight, s::kPaperColour,
                                            s::kPaperTray};
constexpr UIMoleculeRecord kOutputGroup[] = {s::kStaple};
constexpr UIMoleculeRecord kPaperLeft[] = {group(O7STR_G_PAPER, kPaperGroup)};
constexpr UIMoleculeRecord kPaperRight[] = {group(O7STR_G_JOB, kJobGroup),
                                            group(O7STR_G_SIDES_COLOUR, kSidesColourGroup),
                                            group(O7STR_G_OUTPUT, kOutputGroup)};
constexpr UIColumnRecord kPaperColumns[] = {left(kPaperLeft), right(kPaperRight)};
constexpr UIContainerRecord kPaperPage = page(1, O7STR_TAB_PAPER, kPaperColumns);

// Page "Layout": layout and finishing
constexpr UIMoleculeRecord kPageLayoutGroup[] = {s::kOrientation,  s::kPagesPerSheet, s::kPageOrder,
                                                 s::kPageBorders,  s::kBooklet,       s::kScaling,
                                                 s::kScalePercent, s::kTargetSize};
constexpr UIMoleculeRecord kFinishingGroup[] = {
    s::kBindingEdge, s::kBindingMargin,  s::kStaple,   s::kPunch,
    s::kFold,        s::kOffsetStacking, s::kOutputBin};
constexpr UIMoleculeRecord kLayoutLeft[] = {group(O7STR_G_PAGE_LAYOUT, kPageLayoutGroup)};
constexpr UIMoleculeRecord kLayoutRight[] = {group(O7STR_G_FINISHING, kFinishingGroup)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutLeft), right(kLayoutRight)};
constexpr UIContainerRecord kLayoutPage = page(2, O7STR_TAB_LAYOUT, kLayoutColumns);

// Page "Image"
constexpr UIMoleculeRecord kQualityGroup[] = {
    s::kPrintQuality, s::kResolution, s::kOptimiseFor, s::kEdgeSmoothing,
    s::kThickenLines, s::kPureBlack,  s::kTonerSaving, text<O7STR_T_TONER, 2>()};
constexpr UIMoleculeRecord kColourGroup[] = {s::kColourMode, s::kLightness, s::kContrast,
                                             s::kSaturation};
constexpr UIMoleculeRecord kColourManagementGroup[] = {s::kColourCorrection, s::kRenderingIntent};
constexpr UIMoleculeRecord kImageLeft[] = {group(O7STR_G_QUALITY, kQualityGroup)};
constexpr UIMoleculeRecord kImageRight[] = {
    group(O7STR_G_COLOUR, kColourGroup), group(O7STR_G_COLOUR_MANAGEMENT, kColourManagementGroup)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageLeft), right(kImageRight)};
constexpr UIContainerRecord kImagePage = page(3, O7STR_TAB_IMAGE, kImageColumns);

// Page "Special Pages": sheets that differ from the others, and which pages are printed
constexpr UIMoleculeRecord kCoversGroup[] = {s::kCovers, s::kCoverTray, text<O7STR_T_COVERS, 2>(),
                                             s::kCoverPrinting};
constexpr UIMoleculeRecord kBannerGroup[] = {s::kBannerSheet, text<O7STR_T_BANNER, 2>()};
constexpr UIMoleculeRecord kPagesGroup[] = {s::kPageRange, s::kSkipBlankPages, s::kReverseOrder,
                                            s::kRotate180, s::kMirrorImage,    s::kEdgeToEdge};
constexpr UIMoleculeRecord kFeedingGroup[] = {s::kMissingPaper, s::kTraySwitching};
constexpr UIMoleculeRecord kSpecialLeft[] = {group(O7STR_G_COVERS, kCoversGroup),
                                             group(O7STR_G_BANNER, kBannerGroup)};
constexpr UIMoleculeRecord kSpecialRight[] = {group(O7STR_G_PAGES, kPagesGroup),
                                              group(O7STR_G_FEEDING, kFeedingGroup)};
constexpr UIColumnRecord kSpecialColumns[] = {left(kSpecialLeft), right(kSpecialRight)};
constexpr UIContainerRecord kSpecialPage = page(4, O7STR_TAB_SPECIAL, kSpecialColumns);

// Page "Watermark"
constexpr UIMoleculeRecord kWatermarkGroup[] = {s::kWatermark, text<O7STR_T_WATERMARK, 2>(),
                                                s::kWatermarkFirst, s::kWatermarkLayer};
constexpr UIMoleculeRecord kOverlayGroup[] = {s::kOverlay, text<O7STR_T_OVERLAY, 2>(),
                                              s::kOverlayName};
constexpr UIMoleculeRecord kPageNumbersGroup[] = {s::kPageNumbers, s::kFirstPageNumber};
constexpr UIMoleculeRecord kWatermarkLeft[] = {group(O7STR_G_WATERMARK, kWatermarkGroup)};
constexpr UIMoleculeRecord kWatermarkRight[] = {group(O7STR_G_OVERLAY, kOverlayGroup),
                                                group(O7STR_G_PAGE_NUMBERS, kPageNumbersGroup)};
constexpr UIColumnRecord kWatermarkColumns[] = {left(kWatermarkLeft), right(kWatermarkRight)};
constexpr UIContainerRecord kWatermarkPage = page(5, O7STR_TAB_WATERMARK, kWatermarkColumns);

// Page "Job Options"
constexpr UIMoleculeRecord kJobOptionsGroup[] = {s::kJobTypeList, text<O7STR_T_JOB_TYPE, 2>(),
                                                 s::kPin,         s::kDelayHour,
                                                 s::kDelayMinute, s::kEncryptJob};
constexpr UIMoleculeRecord kSavedJobsGroup[] = {s::kSavedName, s::kSavedFolder,
                                                s::kDeleteAfterPrinting};
constexpr UIMoleculeRecord kFaxGroup[] = {s::kFaxResolution, s::kFaxSendTime, s::kFaxConfirmation};
constexpr UIMoleculeRecord kJobLeft[] = {group(O7STR_G_JOB, kJobOptionsGroup)};
constexpr UIMoleculeRecord kJobRight[] = {group(O7STR_G_SAVED_JOBS, kSavedJobsGroup),
                                          group(O7STR_G_FAX, kFaxGroup)};
constexpr UIColumnRecord kJobColumns[] = {left(kJobLeft), right(kJobRight)};
constexpr UIContainerRecord kJobPage = jobPage(6, kJobColumns, kJobFeatures);

// Page "Advanced", and "Policies" in its place where the administrator sets the defaults
constexpr UIMoleculeRecord kWarnGroup[] = {s::kWarnOnApply};
constexpr UIMoleculeRecord kAdvancedRight[] = {group(O7STR_G_DATA, kDataGroup),
                                               group(O7STR_G_UNITS, kUnitsGroup),
                                               group(O7STR_G_APPLY, kWarnGroup)};
constexpr UIMoleculeRecord kPolicyRight[] = {group(O7STR_G_DATA, kDataGroup),
                                             group(O7STR_G_APPLY, kWarnGroup)};
constexpr UIColumnRecord kAdvancedColumns[] = {left(kAccountsAndTracking), right(kAdvancedRight)};
constexpr UIColumnRecord kPolicyColumns[] = {left(kAccountsAndTracking), right(kPolicyRight)};
constexpr UIContainerRecord kAdvancedPage = page(7, O7STR_TAB_ADVANCED, kAdvancedColumns);
constexpr UIContainerRecord kPolicyPage = page(8, O7STR_TAB_POLICY, kPolicyColumns);

// Device settings: "Installed Options"
constexpr UIMoleculeRecord kHandlingGroup[] = {s::kTrays, s::kDuplexUnit, s::kLargeTray};
constexpr UIMoleculeRecord kControllerGroup[] = {s::kMemory, s::kHardDisk,
                                                 text<O7STR_T_CONTROLLER, 2>(), s::kFaxBoard};
constexpr UIMoleculeRecord kInstalledFinishingGroup[] = {s::kFinisher, text<O7STR_T_FINISHING, 2>(),
                                                         s::kPunchKit, s::kFoldingUnit};
constexpr UIMoleculeRecord kInstalledLeft[] = {group(O7STR_G_PAPER_HANDLING, kHandlingGroup),
                                               group(O7STR_G_CONTROLLER, kControllerGroup)};
constexpr UIMoleculeRecord kInstalledRight[] = {group(O7STR_G_FINISHING, kInstalledFinishingGroup),
                                                group(O7STR_G_SECURITY, kSecurityGroup)};
constexpr UIColumnRecord kInstalledColumns[] = {left(kInstalledLeft), right(kInstalledRight)};
constexpr UIContainerRecord kInstalledPage = devicePage(1, O7STR_TAB_INSTALLED, kInstalledColumns);

// Device settings: "Communication"
constexpr UIMoleculeRecord kStateGroup[] = {s::kBidirectional, text<O7STR_T_CONNECTION, 2>(),
                                            s::kStatusInterval};
constexpr UIMoleculeRecord kLinkLeft[] = {group(O7STR_G_CONNECTION, kStateGroup),
                                          group(O7STR_G_TRACKING, kTrackingGroup),
                                          group(O7STR_G_APPLY, kApplyGroup)};
constexpr UIMoleculeRecord kLinkRight[] = {group(O7STR_G_DEVICE, kDeviceGroup)};
constexpr UIColumnRecord kLinkColumns[] = {left(kLinkLeft), right(kLinkRight)};
constexpr UIContainerRecord kLinkPage = devicePage(3, O7STR_TAB_COMMUNICATION, kLinkColumns);

// Dialogs
constexpr UIMoleculeRecord kQuickPaperGroup[] = {s::kPaperSize, s::kPaperTray, s::kSides,
                                                 s::kOrientation, s::kCopies};
constexpr UIMoleculeRecord kQuickOutputGroup[] = {s::kColourMode, s::kPrintQualityList, s::kStaple,
                                                  s::kJobType};
constexpr UIMoleculeRecord kQuickLeft[] = {group(O7STR_G_PAPER, kQuickPaperGroup)};
constexpr UIMoleculeRecord kQuickRight[] = {group(O7STR_G_OUTPUT, kQuickOutputGroup)};
constexpr UIColumnRecord kQuickColumns[] = {left(kQuickLeft), right(kQuickRight)};
constexpr UIContainerRecord kDialogs[] = {quick(183, kQuickColumns), kTrackingOffDialog};

// The four interfaces
constexpr UIContainerRecord kPreferences[] = {
    kPaperPage, kLayoutPage, kImagePage, kSpecialPage, kWatermarkPage, kJobPage, kAdvancedPage};
constexpr UIContainerRecord kDevice[] = {kInstalledPage, kTraysPage, kLinkPage, kPoliciesPage};
constexpr UIContainerRecord kDefaults[] = {kPaperPage,     kLayoutPage, kImagePage, kSpecialPage,
                                           kWatermarkPage, kJobPage,    kPolicyPage};

constexpr UIRootRecord kRoots[] = {
    preferences(DataModelIds::kValueFamily8430, kPreferences, kDialogs),
    deviceSettings(DataModelIds::kValueFamily8430, kDevice, kDialogs),
    compact(DataModelIds::kValueFamily8430, kDialogs),
    defaults(DataModelIds::kValueFamily8430, kDefaults, kDialogs),
};

} // namespace

constexpr o7::FamilyRecords o7::kFamily8430 = kRoots;
