// The office colour device, in all four modes. Pages are listed as people need them: most used
// first, and a setting stands at the same place in every mode that shows it.
#include "rootrecords.h"
#include "settings.h"

namespace {

using namespace o7;
namespace s = o7::settings;

// Page "Paper/Output"
constexpr UIMoleculeRecord kJobGroup[] = {s::kJobType, s::kCollate};
constexpr UIMoleculeRecord kPaperGroup[] = {s::kPaperSize, s::kPaperType, s::kPaperTray};
constexpr UIMoleculeRecord kSidesColourGroup[] = {s::kSides, s::kColourMode};
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
constexpr UIMoleculeRecord kFinishingGroup[] = {s::kStaple, s::kPunch, s::kFold, s::kOutputBin};
constexpr UIMoleculeRecord kLayoutLeft[] = {group(O7STR_G_PAGE_LAYOUT, kPageLayoutGroup),
                                            group(O7STR_G_BOOKLET, kBookletGroup)};
constexpr UIMoleculeRecord kLayoutRight[] = {group(O7STR_G_FINISHING, kFinishingGroup)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutLeft), right(kLayoutRight)};
constexpr UIContainerRecord kLayoutPage = page(2, O7STR_TAB_LAYOUT, kLayoutColumns);

// Page "Image"
constexpr UIMoleculeRecord kQualityGroup[] = {s::kPrintQuality, s::kResolution, s::kOptimiseFor,
                                              text<O7STR_T_QUALITY, 2>()};
constexpr UIMoleculeRecord kColourGroup[] = {s::kColourMode, s::kTonerSaving,
                                             text<O7STR_T_TONER, 2>()};
constexpr UIMoleculeRecord kImageLeft[] = {group(O7STR_G_QUALITY, kQualityGroup)};
constexpr UIMoleculeRecord kImageRight[] = {group(O7STR_G_COLOUR, kColourGroup)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageLeft), right(kImageRight)};
constexpr UIContainerRecord kImagePage = page(3, O7STR_TAB_IMAGE, kImageColumns);

// Page "Watermark"
constexpr UIMoleculeRecord kWatermarkGroup[] = {s::kWatermark, s::kWatermarkFirst,
                                                text<O7STR_T_WATERMARK, 2>()};
constexpr UIMoleculeRecord kBannerGroup[] = {s::kBannerSheet, text<O7STR_T_BANNER, 2>()};
constexpr UIMoleculeRecord kCoversGroup[] = {s::kCovers, s::kCoverTray, text<O7STR_T_COVERS, 2>()};
constexpr UIMoleculeRecord kWatermarkLeft[] = {group(O7STR_G_WATERMARK, kWatermarkGroup),
                                               group(O7STR_G_BANNER, kBannerGroup)};
constexpr UIMoleculeRecord kWatermarkRight[] = {group(O7STR_G_COVERS, kCoversGroup)};
constexpr UIColumnRecord kWatermarkColumns[] = {left(kWatermarkLeft), right(kWatermarkRight)};
constexpr UIContainerRecord kWatermarkPage = page(4, O7STR_TAB_WATERMARK, kWatermarkColumns);

// Page "Job Options"; the address for tracking travels with it although nobody types it here.
constexpr UIMoleculeRecord kJobOptionsGroup[] = {s::kJobType, text<O7STR_T_JOB_TYPE, 2>(),
                                                 s::kCollate, s::kNotifyWhenDone};
constexpr UIMoleculeRecord kAccountingGroup[] = {s::kAccounting, text<O7STR_T_ACCOUNTING, 2>()};
constexpr UIMoleculeRecord kTrackingGroup[] = {s::kTrackJobs, text<O7STR_T_TRACKING, 2>()};
constexpr UIMoleculeRecord kJobLeft[] = {group(O7STR_G_JOB, kJobOptionsGroup)};
constexpr UIMoleculeRecord kJobRight[] = {group(O7STR_G_ACCOUNTING, kAccountingGroup),
                                          group(O7STR_G_TRACKING, kTrackingGroup)};
constexpr UIColumnRecord kJobColumns[] = {left(kJobLeft), right(kJobRight)};
constexpr UISimpleFeatureRecord kJobFeatures[] = {{DataModelIds::kFeatureDeviceAddress}};
constexpr UIContainerRecord kJobPage{.id = 5,
                                     .title = O7STR_TAB_JOB,
                                     .width = kPageWidth,
                                     .height = kPageHeight,
                                     .columns = kJobColumns,
                                     .simpleFeatures = kJobFeatures};

// Page "Advanced", and "Policies" in its place where the administrator sets the defaults
constexpr UIMoleculeRecord kPagesGroup[] = {s::kMirrorImage, s::kEdgeToEdge, s::kSkipBlankPages};
constexpr UIMoleculeRecord kUnitsGroup[] = {s::kUnits, text<O7STR_T_UNITS, 2>()};
constexpr UIMoleculeRecord kApplyGroup[] = {s::kWarnOnApply, text<O7STR_T_APPLY, 2>()};
constexpr UIMoleculeRecord kConnectionGroup[] = {s::kBidirectional, text<O7STR_T_CONNECTION, 2>()};
constexpr UIMoleculeRecord kAdvancedLeft[] = {group(O7STR_G_PAGES, kPagesGroup),
                                              group(O7STR_G_UNITS, kUnitsGroup)};
constexpr UIMoleculeRecord kAdvancedRight[] = {group(O7STR_G_APPLY, kApplyGroup)};
constexpr UIMoleculeRecord kPolicyRight[] = {group(O7STR_G_APPLY, kApplyGroup),
                                             group(O7STR_G_CONNECTION, kConnectionGroup)};
constexpr UIColumnRecord kAdvancedColumns[] = {left(kAdvancedLeft), right(kAdvancedRight)};
constexpr UIColumnRecord kPolicyColumns[] = {left(kAdvancedLeft), right(kPolicyRight)};
constexpr UIContainerRecord kAdvancedPage = page(6, O7STR_TAB_ADVANCED, kAdvancedColumns);
constexpr UIContainerRecord kPolicyPage = page(7, O7STR_TAB_POLICY, kPolicyColumns);

// Device settings: "Installed Options" and "Communication"
constexpr UIMoleculeRecord kHandlingGroup[] = {s::kTrays, s::kDuplexUnit};
constexpr UIMoleculeRecord kControllerGroup[] = {s::kHardDisk, text<O7STR_T_CONTROLLER, 2>()};
constexpr UIMoleculeRecord kInstalledFinishingGroup[] = {
    s::kFinisher, s::kPunchKit, s::kFoldingUnit, text<O7STR_T_FINISHING, 2>()};
constexpr UIMoleculeRecord kInstalledLeft[] = {group(O7STR_G_PAPER_HANDLING, kHandlingGroup),
                                               group(O7STR_G_CONTROLLER, kControllerGroup)};
constexpr UIMoleculeRecord kInstalledRight[] = {group(O7STR_G_FINISHING, kInstalledFinishingGroup)};
constexpr UIColumnRecord kInstalledColumns[] = {left(kInstalledLeft), right(kInstalledRight)};
constexpr UIContainerRecord kInstalledPage = page(1, O7STR_TAB_INSTALLED, kInstalledColumns);

constexpr UIMoleculeRecord kLinkLeft[] = {group(O7STR_G_CONNECTION, kConnectionGroup),
                                          group(O7STR_G_TRACKING, kTrackingGroup)};
constexpr UIMoleculeRecord kLinkRight[] = {group(O7STR_G_UNITS, kUnitsGroup),
                                           group(O7STR_G_APPLY, kApplyGroup)};
constexpr UIColumnRecord kLinkColumns[] = {left(kLinkLeft), right(kLinkRight)};
constexpr UIContainerRecord kLinkPage = page(2, O7STR_TAB_COMMUNICATION, kLinkColumns);

// Dialogs
constexpr UIMoleculeRecord kQuickPaperGroup[] = {s::kPaperSize, s::kPaperTray, s::kSides,
                                                 s::kOrientation};
constexpr UIMoleculeRecord kQuickOutputGroup[] = {s::kColourMode, s::kPrintQuality, s::kStaple,
                                                  s::kJobType};
constexpr UIMoleculeRecord kQuickLeft[] = {group(O7STR_G_PAPER, kQuickPaperGroup)};
constexpr UIMoleculeRecord kQuickRight[] = {group(O7STR_G_OUTPUT, kQuickOutputGroup)};
constexpr UIColumnRecord kQuickColumns[] = {left(kQuickLeft), right(kQuickRight)};

constexpr UIMoleculeRecord kTrackingOffColumn[] = {text<O7STR_T_TRACKING_OFF, 2>(),
                                                   s::kDoNotShowAgain};
constexpr UIColumnRecord kTrackingOffColumns[] = {wide(kTrackingOffColumn)};

constexpr UIContainerRecord kDialogs[] = {
    dialog(DialogId::QuickSettings, O7STR_DIALOG_QUICK, 162, kQuickColumns, kOkCancel),
    dialog(DialogId::JobTrackingOff, O7STR_DIALOG_TRACKING_OFF, 75, kTrackingOffColumns, kOkOnly),
};

// The four interfaces
constexpr UIContainerRecord kPreferences[] = {kPaperPage,     kLayoutPage, kImagePage,
                                              kWatermarkPage, kJobPage,    kAdvancedPage};
constexpr UIContainerRecord kDeviceSettings[] = {kInstalledPage, kLinkPage};
constexpr UIContainerRecord kDefaults[] = {kPaperPage,     kLayoutPage, kImagePage,
                                           kWatermarkPage, kJobPage,    kPolicyPage};

constexpr UIRootRecord kRoots[] = {
    {.family = DataModelIds::kValueFamily8430,
     .mode = UIMode::PrintingPreferences,
     .caption = O7STR_CAPTION_PREFERENCES,
     .tabs = kPreferences,
     .dialogs = kDialogs},
    {.family = DataModelIds::kValueFamily8430,
     .mode = UIMode::DeviceSettings,
     .caption = O7STR_CAPTION_DEVICE,
     .tabs = kDeviceSettings,
     .dialogs = kDialogs},
    {.family = DataModelIds::kValueFamily8430,
     .mode = UIMode::CompactDialog,
     .caption = O7STR_DIALOG_QUICK,
     .dialogs = kDialogs},
    {.family = DataModelIds::kValueFamily8430,
     .mode = UIMode::PrintingDefaults,
     .caption = O7STR_CAPTION_DEFAULTS,
     .tabs = kDefaults,
     .dialogs = kDialogs},
};

} // namespace

constexpr o7::FamilyRecords o7::kFamily8430 = kRoots;
