// The production press: what a sheet is, how it is imposed, and everything that happens behind the
// printer.
#include "rootrecords.h"
#include "sharedgroups.h"

namespace {

using namespace o7;
using namespace o7::shared;

// Page "Sheets"
constexpr UIMoleculeRecord kSheetGroup[] = {s::kPaperSize,   s::kCustomWidth, s::kCustomLength,
                                            s::kPaperType,   s::kTabCount,    s::kTabShift,
                                            s::kPaperWeight, s::kPaperColour};
constexpr UIMoleculeRecord kCopiesSidesGroup[] = {s::kCopies, s::kCollate, s::kSides,
                                                  s::kColourMode};
constexpr UIMoleculeRecord kFeedingGroup[] = {s::kPaperTray, s::kFeedDirection, s::kTraySwitching};
constexpr UIMoleculeRecord kSheetsLeft[] = {group(O7STR_G_PAPER, kSheetGroup)};
constexpr UIMoleculeRecord kSheetsRight[] = {group(O7STR_G_JOB, kCopiesSidesGroup),
                                             group(O7STR_G_FEEDING, kFeedingGroup)};
constexpr UIColumnRecord kSheetsColumns[] = {left(kSheetsLeft), right(kSheetsRight)};
constexpr UIContainerRecord kSheetsPage = page(1, O7STR_TAB_SHEETS, kSheetsColumns);

// Page "Layout"
constexpr UIMoleculeRecord kPageLayoutGroup[] = {s::kOrientation, s::kPagesPerSheet, s::kPageOrder,
                                                 s::kPageBorders, s::kScaling,       s::kCropMarks,
                                                 s::kBleed};
constexpr UIMoleculeRecord kImpositionGroup[] = {s::kImposition, s::kImpositionCount};
constexpr UIMoleculeRecord kBookletGroup[] = {s::kBindingEdge,      s::kBooklet,
                                              s::kBookletDirection, s::kBookletSection,
                                              s::kBookletGutter,    s::kBookletCreep};
constexpr UIMoleculeRecord kLayoutLeft[] = {group(O7STR_G_PAGE_LAYOUT, kPageLayoutGroup)};
constexpr UIMoleculeRecord kLayoutRight[] = {group(O7STR_G_IMPOSITION, kImpositionGroup),
                                             group(O7STR_G_BINDING, kBookletGroup)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutLeft), right(kLayoutRight)};
constexpr UIContainerRecord kLayoutPage = page(2, O7STR_TAB_LAYOUT, kLayoutColumns);

// Page "Finishing"
constexpr UIMoleculeRecord kFinishingGroup[] = {s::kStaple,     s::kPunch,          s::kOutputBin,
                                                s::kOutputFace, s::kOffsetStacking, s::kTrim,
                                                s::kTrimAmount};
constexpr UIMoleculeRecord kFoldingGroup[] = {s::kFold, s::kFoldSheets, s::kFoldPrintSide,
                                              s::kCrease};
constexpr UIMoleculeRecord kBindingGroup[] = {s::kBinding, s::kSpineThickness, s::kSquareSpine};
constexpr UIMoleculeRecord kFinishingLeft[] = {group(O7STR_G_FINISHING, kFinishingGroup)};
constexpr UIMoleculeRecord kFinishingRight[] = {group(O7STR_G_FOLDING, kFoldingGroup),
                                                group(O7STR_G_BINDING, kBindingGroup)};
constexpr UIColumnRecord kFinishingColumns[] = {left(kFinishingLeft), right(kFinishingRight)};
constexpr UIContainerRecord kFinishingPage = page(3, O7STR_TAB_FINISHING, kFinishingColumns);

// Page "Special Pages"
constexpr UIMoleculeRecord kFrontCoverGroup[] = {s::kCovers, s::kCoverTray, s::kCoverPrinting,
                                                 s::kCoverType, s::kCoverWeight};
constexpr UIMoleculeRecord kPageRangeGroup[] = {s::kPageRange};
constexpr UIMoleculeRecord kBackCoverGroup[] = {s::kBackCoverTray, s::kBackCoverPrinting};
constexpr UIMoleculeRecord kSeparatorsGroup[] = {s::kSeparators, s::kSeparatorTray,
                                                 s::kBannerSheet};
constexpr UIMoleculeRecord kSpecialLeft[] = {group(O7STR_G_FRONT_COVER, kFrontCoverGroup),
                                             group(O7STR_G_PAGES, kPageRangeGroup)};
constexpr UIMoleculeRecord kSpecialRight[] = {group(O7STR_G_BACK_COVER, kBackCoverGroup),
                                              group(O7STR_G_SEPARATORS, kSeparatorsGroup)};
constexpr UIColumnRecord kSpecialColumns[] = {left(kSpecialLeft), right(kSpecialRight)};
constexpr UIContainerRecord kSpecialPage = page(4, O7STR_TAB_SPECIAL, kSpecialColumns);

// Page "Image"
constexpr UIMoleculeRecord kQualityGroup[] = {s::kPrintQuality, s::kResolution, s::kHalftone,
                                              s::kImageCompression};
constexpr UIMoleculeRecord kStampsGroup[] = {s::kWatermarkList, s::kPageNumbers};
constexpr UIMoleculeRecord kImageShiftGroup[] = {s::kImageShift, s::kShiftFrontX, s::kShiftFrontY,
                                                 s::kShiftBackX, s::kShiftBackY};
constexpr UIMoleculeRecord kImageLeft[] = {group(O7STR_G_QUALITY, kQualityGroup)};
constexpr UIMoleculeRecord kImageRight[] = {group(O7STR_G_IMAGE_SHIFT, kImageShiftGroup),
                                            group(O7STR_G_STAMPS, kStampsGroup)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageLeft), right(kImageRight)};
constexpr UIContainerRecord kImagePage = page(5, O7STR_TAB_IMAGE, kImageColumns);

// Page "Colour"
constexpr UIMoleculeRecord kManagementGroup[] = {s::kColourCorrection, s::kRenderingIntent,
                                                 s::kRgbProfile,       s::kPressSimulation,
                                                 s::kSpotColours,      s::kPureBlack};
constexpr UIMoleculeRecord kPressGroup[] = {s::kTrapping, s::kGloss, s::kBlackOverprint};
constexpr UIMoleculeRecord kSpecialColourGroup[] = {s::kSpecialColour, s::kSpecialColourArea};
constexpr UIMoleculeRecord kColourLeft[] = {group(O7STR_G_COLOUR_MANAGEMENT, kManagementGroup)};
constexpr UIMoleculeRecord kColourRight[] = {group(O7STR_G_PRESS, kPressGroup),
                                             group(O7STR_G_SPECIAL_COLOUR, kSpecialColourGroup)};
constexpr UIColumnRecord kColourColumns[] = {left(kColourLeft), right(kColourRight)};
constexpr UIContainerRecord kColourPage = page(6, O7STR_TAB_COLOUR, kColourColumns);

// Page "Job Options", and "Policies" in its place where the administrator sets the defaults
constexpr UIMoleculeRecord kJobOptionsGroup[] = {s::kJobTypeList,    s::kPin,
                                                 s::kSampleInterval, s::kJobPriority,
                                                 s::kCopiesTogether, s::kEncryptJob};
constexpr UIMoleculeRecord kWarnGroup[] = {s::kWarnOnApply};
constexpr UIMoleculeRecord kNoteGroup[] = {s::kOperatorNote, s::kTrackJobs, s::kNotifyWhenDone};
constexpr UIMoleculeRecord kJobLeft[] = {group(O7STR_G_JOB, kJobOptionsGroup)};
constexpr UIMoleculeRecord kJobRight[] = {group(O7STR_G_ACCOUNTING, kAccountsGroup),
                                          group(O7STR_G_MESSAGES, kNoteGroup)};
constexpr UIColumnRecord kJobColumns[] = {left(kJobLeft), right(kJobRight)};
constexpr UIContainerRecord kJobPage = jobPage(7, kJobColumns, kJobFeatures);
constexpr UIMoleculeRecord kPagesGroup[] = {s::kSkipBlankPages, s::kReverseOrder, s::kRotate180};
constexpr UIMoleculeRecord kPolicyLeft[] = {group(O7STR_G_PAGES, kPagesGroup),
                                            group(O7STR_G_UNITS, kUnitsGroup)};
constexpr UIColumnRecord kPolicyColumns[] = {left(kPolicyLeft), right(kApplyOnly)};
constexpr UIContainerRecord kPolicyPage = page(8, O7STR_TAB_POLICY, kPolicyColumns);

// Device settings
constexpr UIMoleculeRecord kHandlingGroup[] = {s::kTrays, s::kFeedModule, s::kInserter,
                                               s::kLongSheetFeed};
constexpr UIMoleculeRecord kFoldingUnitsGroup[] = {s::kFoldingUnit, s::kCreaser,
                                                   s::kSquareSpineUnit};
constexpr UIMoleculeRecord kFinishingUnitsGroup[] = {s::kFinisher, s::kPunchDie, s::kStackers,
                                                     s::kTrimmer, s::kBinder};
constexpr UIMoleculeRecord kInstalledLeft[] = {group(O7STR_G_PAPER_HANDLING, kHandlingGroup),
                                               group(O7STR_G_FOLDING, kFoldingUnitsGroup)};
constexpr UIMoleculeRecord kInstalledRight[] = {group(O7STR_G_FINISHING, kFinishingUnitsGroup)};
constexpr UIColumnRecord kInstalledColumns[] = {left(kInstalledLeft), right(kInstalledRight)};
constexpr UIContainerRecord kInstalledPage = devicePage(1, O7STR_TAB_INSTALLED, kInstalledColumns);

constexpr UIMoleculeRecord kColourUnitsGroup[] = {s::kSpecialColourStation, s::kColourController,
                                                  text<O7STR_T_COLOUR_UNITS, 2>(), s::kColourSensor,
                                                  s::kCalibrationDays};
constexpr UIMoleculeRecord kServiceLeft[] = {group(O7STR_G_COLOUR, kColourUnitsGroup),
                                             group(O7STR_G_SECURITY, kSecurityGroup)};
constexpr UIMoleculeRecord kServiceRight[] = {group(O7STR_G_CONNECTION, kConnectionGroup),
                                              group(O7STR_G_APPLY, kApplyGroup)};
constexpr UIColumnRecord kServiceColumns[] = {left(kServiceLeft), right(kServiceRight)};
constexpr UIContainerRecord kServicePage = devicePage(3, O7STR_TAB_SERVICE, kServiceColumns);

constexpr UIMoleculeRecord kRulesLeft[] = {group(O7STR_G_POLICIES, kPoliciesGroup),
                                           group(O7STR_G_TRACKING, kTrackingGroup)};
constexpr UIColumnRecord kRulesColumns[] = {left(kRulesLeft), right(kPoliciesRight)};
constexpr UIContainerRecord kRulesPage = devicePage(4, O7STR_TAB_POLICY, kRulesColumns);

// Dialogs
constexpr UIMoleculeRecord kQuickSheetGroup[] = {s::kPaperSize, s::kPaperType, s::kPaperWeight,
                                                 s::kSides, s::kCopies};
constexpr UIMoleculeRecord kQuickFinishingGroup[] = {s::kStaple, s::kFold, s::kBinding,
                                                     s::kOutputBin};
constexpr UIMoleculeRecord kQuickLeft[] = {group(O7STR_G_PAPER, kQuickSheetGroup)};
constexpr UIMoleculeRecord kQuickRight[] = {group(O7STR_G_FINISHING, kQuickFinishingGroup)};
constexpr UIColumnRecord kQuickColumns[] = {left(kQuickLeft), right(kQuickRight)};
constexpr UIContainerRecord kDialogs[] = {quick(175, kQuickColumns), kTrackingOffDialog};

// The four interfaces
constexpr UIContainerRecord kPreferences[] = {
    kSheetsPage, kLayoutPage, kFinishingPage, kSpecialPage, kImagePage, kColourPage, kJobPage};
constexpr UIContainerRecord kDevice[] = {kInstalledPage, kTraysPage, kServicePage, kRulesPage};
constexpr UIContainerRecord kDefaults[] = {kSheetsPage, kLayoutPage, kFinishingPage, kSpecialPage,
                                           kImagePage,  kColourPage, kPolicyPage};

constexpr UIRootRecord kRoots[] = {
    preferences(DataModelIds::kValueFamily8431, kPreferences, kDialogs),
    deviceSettings(DataModelIds::kValueFamily8431, kDevice, kDialogs),
    compact(DataModelIds::kValueFamily8431, kDialogs),
    defaults(DataModelIds::kValueFamily8431, kDefaults, kDialogs),
};

} // namespace

constexpr o7::FamilyRecords o7::kFamily8431 = kRoots;
