// The small black-and-white device.
#include "rootrecords.h"
#include "sharedgroups.h"

namespace {

using namespace o7;
using namespace o7::shared;

// Page "Basics"
constexpr UIMoleculeRecord kPaperGroup[] = {s::kPaperSize, s::kCustomWidth, s::kCustomLength,
                                            s::kPaperType, s::kPaperWeight, s::kPaperTray};
constexpr UIMoleculeRecord kSidesGroup[] = {s::kSides, s::kManualTwoSided};
constexpr UIMoleculeRecord kOutputGroup[] = {s::kOutputBin};
constexpr UIMoleculeRecord kBasicsLeft[] = {group(O7STR_G_PAPER, kPaperGroup)};
constexpr UIMoleculeRecord kBasicsRight[] = {group(O7STR_G_JOB, kJobGroup),
                                             group(O7STR_G_SIDES, kSidesGroup),
                                             group(O7STR_G_OUTPUT, kOutputGroup)};
constexpr UIColumnRecord kBasicsColumns[] = {left(kBasicsLeft), right(kBasicsRight)};
constexpr UIContainerRecord kBasicsPage = page(1, O7STR_TAB_BASICS, kBasicsColumns);

// Page "Layout"
constexpr UIMoleculeRecord kPageLayoutGroup[] = {
    s::kOrientation, s::kPagesPerSheet, s::kPageOrder, s::kPageBorders,
    s::kScaling,     s::kScalePercent,  s::kTargetSize};
constexpr UIMoleculeRecord kBindingGroup[] = {s::kBindingEdge, s::kBindingMargin, s::kBooklet,
                                              s::kBookletDirection};
constexpr UIMoleculeRecord kPagesGroup[] = {s::kPoster, s::kRotate180, s::kReverseOrder,
                                            s::kSkipBlankPages};
constexpr UIMoleculeRecord kLayoutLeft[] = {group(O7STR_G_PAGE_LAYOUT, kPageLayoutGroup)};
constexpr UIMoleculeRecord kLayoutRight[] = {group(O7STR_G_BINDING, kBindingGroup),
                                             group(O7STR_G_PAGES, kPagesGroup)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutLeft), right(kLayoutRight)};
constexpr UIContainerRecord kLayoutPage = page(2, O7STR_TAB_LAYOUT, kLayoutColumns);

// Page "Image"
constexpr UIMoleculeRecord kQualityGroup[] = {
    s::kPrintQuality,         s::kResolution,    s::kTonerDensity, s::kTonerSaving,
    text<O7STR_T_TONER, 2>(), s::kEdgeSmoothing, s::kThickenLines};
constexpr UIMoleculeRecord kWatermarkGroup[] = {s::kWatermark, s::kWatermarkFirst};
constexpr UIMoleculeRecord kImageLeft[] = {group(O7STR_G_QUALITY, kQualityGroup)};
constexpr UIMoleculeRecord kImageRight[] = {group(O7STR_G_WATERMARK, kWatermarkGroup),
                                            group(O7STR_G_DATA, kDataGroup)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageLeft), right(kImageRight)};
constexpr UIContainerRecord kImagePage = page(3, O7STR_TAB_IMAGE, kImageColumns);

// Page "Job Options"
constexpr UIMoleculeRecord kJobOptionsGroup[] = {s::kJobTypeList, text<O7STR_T_JOB_TYPE, 2>(),
                                                 s::kCopiesTogether, s::kNotifyWhenDone};
constexpr UIMoleculeRecord kHeldJobsGroup[] = {s::kPin, s::kHeldJobHours, s::kSavedName,
                                               s::kDeleteAfterPrinting};
constexpr UIMoleculeRecord kAccountGroup[] = {s::kAccounting, s::kAccountId, s::kUserId};
constexpr UIMoleculeRecord kJobLeft[] = {group(O7STR_G_JOB, kJobOptionsGroup)};
constexpr UIMoleculeRecord kJobRight[] = {group(O7STR_G_HELD_JOBS, kHeldJobsGroup),
                                          group(O7STR_G_ACCOUNTING, kAccountGroup)};
constexpr UIColumnRecord kJobColumns[] = {left(kJobLeft), right(kJobRight)};
constexpr UIContainerRecord kJobPage = jobPage(4, kJobColumns, kJobFeatures);

// Page "Advanced"
constexpr UIMoleculeRecord kFeedingGroup[] = {s::kMissingPaper, s::kTraySwitching, s::kManualFeed,
                                              s::kLetterhead};
constexpr UIMoleculeRecord kAdvancedLeft[] = {group(O7STR_G_FEEDING, kFeedingGroup)};
constexpr UIMoleculeRecord kAdvancedRight[] = {group(O7STR_G_UNITS, kUnitsGroup),
                                               group(O7STR_G_APPLY, kApplyGroup)};
constexpr UIColumnRecord kAdvancedColumns[] = {left(kAdvancedLeft), right(kAdvancedRight)};
constexpr UIContainerRecord kAdvancedPage = page(5, O7STR_TAB_ADVANCED, kAdvancedColumns);

// Device settings
constexpr UIMoleculeRecord kHandlingGroup[] = {s::kTrays, s::kDuplexUnit};
constexpr UIMoleculeRecord kControllerGroup[] = {s::kMemory,       s::kStorageCard,
                                                 s::kWireless,     s::kQuietMode,
                                                 s::kSleepMinutes, s::kLowSupplyWarning};
constexpr UIMoleculeRecord kServiceLeft[] = {group(O7STR_G_PAPER_HANDLING, kHandlingGroup),
                                             group(O7STR_G_CONTROLLER, kControllerGroup)};
constexpr UIMoleculeRecord kServiceRight[] = {group(O7STR_G_CONNECTION, kConnectionGroup),
                                              group(O7STR_G_TRACKING, kTrackingGroup),
                                              group(O7STR_G_DEVICE, kDeviceGroup)};
constexpr UIColumnRecord kServiceColumns[] = {left(kServiceLeft), right(kServiceRight)};
constexpr UIContainerRecord kServicePage = devicePage(1, O7STR_TAB_SERVICE, kServiceColumns);

constexpr UIMoleculeRecord kBypassGroup[] = {s::kBypassPrompt, text<O7STR_T_TRAYS, 2>()};
constexpr UIMoleculeRecord kTrayContentsLeft[] = {group(O7STR_G_TRAY_1, kTray1Group),
                                                  group(O7STR_G_FEEDING, kBypassGroup)};
constexpr UIMoleculeRecord kTrayContentsRight[] = {group(O7STR_G_TRAY_2, kTray2Group),
                                                   group(O7STR_G_REGION, kRegionGroup)};
constexpr UIColumnRecord kTrayContentsColumns[] = {left(kTrayContentsLeft),
                                                   right(kTrayContentsRight)};
constexpr UIContainerRecord kTrayContentsPage =
    devicePage(2, O7STR_TAB_TRAYS, kTrayContentsColumns);

// Dialogs
constexpr UIMoleculeRecord kQuickPaperGroup[] = {s::kPaperSize, s::kPaperTray, s::kSides,
                                                 s::kOrientation, s::kCopies};
constexpr UIMoleculeRecord kQuickOutputGroup[] = {s::kPrintQualityList, s::kJobType};
constexpr UIMoleculeRecord kQuickLeft[] = {group(O7STR_G_PAPER, kQuickPaperGroup)};
constexpr UIMoleculeRecord kQuickRight[] = {group(O7STR_G_OUTPUT, kQuickOutputGroup)};
constexpr UIColumnRecord kQuickColumns[] = {left(kQuickLeft), right(kQuickRight)};

// The four interfaces
constexpr UIContainerRecord kPreferences[] = {kBasicsPage, kLayoutPage, kImagePage, kJobPage,
                                              kAdvancedPage};
constexpr UIContainerRecord kDevice[] = {kServicePage, kTrayContentsPage};
constexpr UIContainerRecord kDialogs[] = {quick(183, kQuickColumns), kTrackingOffDialog};

constexpr UIRootRecord kRoots[] = {
    preferences(DataModelIds::kValueFamily8432, kPreferences, kDialogs),
    deviceSettings(DataModelIds::kValueFamily8432, kDevice, kDialogs),
    compact(DataModelIds::kValueFamily8432, kDialogs),
    defaults(DataModelIds::kValueFamily8432, kPreferences, kDialogs),
};

} // namespace

constexpr o7::FamilyRecords o7::kFamily8432 = kRoots;
