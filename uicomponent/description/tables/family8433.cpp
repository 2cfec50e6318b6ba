// The photo device: paper and picture come first, office matters last or not at all.
#include "rootrecords.h"
#include "sharedgroups.h"

namespace {

using namespace o7;
using namespace o7::shared;

// Page "Pictures"
constexpr UIMoleculeRecord kPaperGroup[] = {s::kPaperSize, s::kCustomWidth,    s::kCustomLength,
                                            s::kPaperType, s::kPaperThickness, s::kPaperTray};
constexpr UIMoleculeRecord kNumberGroup[] = {s::kCopies};
constexpr UIMoleculeRecord kArrangementGroup[] = {s::kPhotoLayout,     s::kEdgeToEdge,
                                                  s::kBorderExpansion, s::kFrame,
                                                  s::kBorderWidth,     s::kAutoRotate};
constexpr UIMoleculeRecord kQualityGroup[] = {s::kPrintQualityList, s::kHighSpeed};
constexpr UIMoleculeRecord kPicturesLeft[] = {group(O7STR_G_PAPER, kPaperGroup),
                                              group(O7STR_G_JOB, kNumberGroup)};
constexpr UIMoleculeRecord kPicturesRight[] = {group(O7STR_G_PICTURES, kArrangementGroup),
                                               group(O7STR_G_QUALITY, kQualityGroup)};
constexpr UIColumnRecord kPicturesColumns[] = {left(kPicturesLeft), right(kPicturesRight)};
constexpr UIContainerRecord kPicturesPage = page(1, O7STR_TAB_PICTURE, kPicturesColumns);

// Page "Image"
constexpr UIMoleculeRecord kColourGroup[] = {s::kColourMode, s::kTone, s::kLightness, s::kContrast,
                                             s::kSaturation};
constexpr UIMoleculeRecord kCorrectionGroup[] = {s::kPhotoEnhancement, s::kRedEye,
                                                 s::kNoiseReduction, s::kSkinSmoothing};
constexpr UIMoleculeRecord kInkGroup[] = {s::kBlackInk, s::kClearCoat};
constexpr UIMoleculeRecord kImageLeft[] = {group(O7STR_G_COLOUR, kColourGroup)};
constexpr UIMoleculeRecord kImageRight[] = {group(O7STR_G_CORRECTION, kCorrectionGroup),
                                            group(O7STR_G_INK, kInkGroup)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageLeft), right(kImageRight)};
constexpr UIContainerRecord kImagePage = page(2, O7STR_TAB_IMAGE, kImageColumns);

// Page "Colour": what the picture itself is changed by
constexpr UIMoleculeRecord kBalanceGroup[] = {s::kBalanceCyanRed, s::kBalanceMagentaGreen,
                                              s::kBalanceYellowBlue};
constexpr UIMoleculeRecord kTonesGroup[] = {s::kShadows, s::kHighlights};
constexpr UIMoleculeRecord kManagementGroup[] = {s::kColourCorrection, s::kRenderingIntent,
                                                 s::kRgbProfile};
constexpr UIMoleculeRecord kDetailsGroup[] = {s::kResolution, s::kSharpening};
constexpr UIMoleculeRecord kColourLeft[] = {group(O7STR_G_BALANCE, kBalanceGroup),
                                            group(O7STR_G_TONES, kTonesGroup)};
constexpr UIMoleculeRecord kColourRight[] = {group(O7STR_G_COLOUR_MANAGEMENT, kManagementGroup),
                                             group(O7STR_G_DETAILS, kDetailsGroup)};
constexpr UIColumnRecord kColourColumns[] = {left(kColourLeft), right(kColourRight)};
constexpr UIContainerRecord kColourPage = page(3, O7STR_TAB_COLOUR, kColourColumns);

// Page "Layout"
constexpr UIMoleculeRecord kPageLayoutGroup[] = {s::kOrientation, s::kScaling, s::kScalePercent,
                                                 s::kTargetSize};
constexpr UIMoleculeRecord kPagesGroup[] = {s::kMirrorImage, s::kReverseOrder};
constexpr UIMoleculeRecord kRollGroup[] = {s::kCut, s::kPageSpacing, s::kPlatenGap, s::kDryingTime};
constexpr UIMoleculeRecord kStampsGroup[] = {s::kDateStamp, s::kCaption};
constexpr UIMoleculeRecord kLayoutLeft[] = {group(O7STR_G_PAGE_LAYOUT, kPageLayoutGroup),
                                            group(O7STR_G_PAGES, kPagesGroup)};
constexpr UIMoleculeRecord kLayoutRight[] = {group(O7STR_G_FEEDING, kRollGroup),
                                             group(O7STR_G_STAMPS, kStampsGroup)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutLeft), right(kLayoutRight)};
constexpr UIContainerRecord kLayoutPage = page(4, O7STR_TAB_LAYOUT, kLayoutColumns);

// Page "Advanced", and "Policies" in its place where the administrator sets the defaults
constexpr UIMoleculeRecord kSendGroup[] = {s::kNotifyWhenDone, s::kMessageAddress, s::kUserId};
constexpr UIMoleculeRecord kAdvancedLeft[] = {group(O7STR_G_MESSAGES, kSendGroup)};
constexpr UIMoleculeRecord kAdvancedRight[] = {group(O7STR_G_UNITS, kUnitsGroup),
                                               group(O7STR_G_APPLY, kApplyGroup)};
constexpr UIColumnRecord kAdvancedColumns[] = {left(kAdvancedLeft), right(kAdvancedRight)};
constexpr UIColumnRecord kPolicyColumns[] = {left(kAdvancedLeft), right(kApplyOnly)};
constexpr UIContainerRecord kAdvancedPage = page(5, O7STR_TAB_ADVANCED, kAdvancedColumns);
constexpr UIContainerRecord kPolicyPage = page(6, O7STR_TAB_POLICY, kPolicyColumns);

// Device settings
constexpr UIMoleculeRecord kInstalledGroup[] = {
    s::kRolls, s::kCutter, s::kBoardFeed, s::kMatteInk, text<O7STR_T_INK, 2>(), s::kWireless};
constexpr UIMoleculeRecord kNoiseGroup[] = {s::kQuietMode, s::kSleepMinutes};
constexpr UIMoleculeRecord kSuppliesGroup[] = {s::kLowSupplyWarning, s::kCalibrationDays};
constexpr UIMoleculeRecord kServiceLeft[] = {group(O7STR_G_INSTALLED, kInstalledGroup),
                                             group(O7STR_G_CONTROLLER, kNoiseGroup)};
constexpr UIMoleculeRecord kServiceRight[] = {group(O7STR_G_CONNECTION, kConnectionGroup),
                                              group(O7STR_G_REGION, kRegionGroup),
                                              group(O7STR_G_SUPPLIES, kSuppliesGroup)};
constexpr UIColumnRecord kServiceColumns[] = {left(kServiceLeft), right(kServiceRight)};
constexpr UIContainerRecord kServicePage = devicePage(1, O7STR_TAB_SERVICE, kServiceColumns);

// Dialogs
constexpr UIMoleculeRecord kQuickPaperGroup[] = {s::kPaperSize, s::kPaperType, s::kPaperTray,
                                                 s::kEdgeToEdge};
constexpr UIMoleculeRecord kQuickPictureGroup[] = {s::kPrintQualityList, s::kColourMode,
                                                   s::kPhotoLayout, s::kCopies};
constexpr UIMoleculeRecord kQuickLeft[] = {group(O7STR_G_PAPER, kQuickPaperGroup)};
constexpr UIMoleculeRecord kQuickRight[] = {group(O7STR_G_PICTURES, kQuickPictureGroup)};
constexpr UIColumnRecord kQuickColumns[] = {left(kQuickLeft), right(kQuickRight)};
constexpr UIContainerRecord kDialogs[] = {quick(154, kQuickColumns)};

// The four interfaces
constexpr UIContainerRecord kPreferences[] = {kPicturesPage, kImagePage, kColourPage, kLayoutPage,
                                              kAdvancedPage};
constexpr UIContainerRecord kDevice[] = {kServicePage};
constexpr UIContainerRecord kDefaults[] = {kPicturesPage, kImagePage, kColourPage, kLayoutPage,
                                           kPolicyPage};

constexpr UIRootRecord kRoots[] = {
    preferences(DataModelIds::kValueFamily8433, kPreferences, kDialogs),
    deviceSettings(DataModelIds::kValueFamily8433, kDevice, kDialogs),
    compact(DataModelIds::kValueFamily8433, kDialogs),
    defaults(DataModelIds::kValueFamily8433, kDefaults, kDialogs),
};

} // namespace

constexpr o7::FamilyRecords o7::kFamily8433 = kRoots;
