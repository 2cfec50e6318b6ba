// Families that have no product of their own yet: one or two small pages for each mode, and no two
// families alike, so that it shows at once which one was selected.
#include "rootrecords.h"
#include "settings.h"

namespace {

using namespace o7;
namespace s = o7::settings;

constexpr UIRootRecord sheet(tagValueEnum family, UIMode mode, std::uint32_t caption,
                             UIRecords<UIContainerRecord> tabs)
{
    return {.family = family, .mode = mode, .caption = caption, .tabs = tabs};
}

constexpr UIRootRecord compact(tagValueEnum family, UIRecords<UIContainerRecord> dialogs)
{
    return {.family = family,
            .mode = UIMode::CompactDialog,
            .caption = O7STR_DIALOG_QUICK,
            .dialogs = dialogs};
}

/// Dialog 103 as high as that many closed lists with labels beside them.
constexpr UIContainerRecord quick(std::int32_t lists, UIRecords<UIColumnRecord> columns)
{
    return dialog(DialogId::QuickSettings, O7STR_DIALOG_QUICK, 35 + 18 * lists, columns, kOkCancel);
}

// 8431: production, with everything that happens behind the printer
namespace production {
constexpr auto kFamily = DataModelIds::kValueFamily8431;
constexpr UIMoleculeRecord kFinishing[] = {s::kStaple, s::kPunch, s::kFold, s::kOutputBin,
                                           s::kBooklet};
constexpr UIMoleculeRecord kUnits[] = {s::kTrays, s::kFinisher, s::kPunchKit, s::kFoldingUnit};
constexpr UIMoleculeRecord kPolicy[] = {s::kJobType, s::kAccounting, s::kWarnOnApply};
constexpr UIMoleculeRecord kQuick[] = {s::kPaperSize, s::kStaple, s::kFold, s::kOutputBin};
// No cover tray here: its mnemonic is the paper tray's.
constexpr UIMoleculeRecord kSheetsLeft[] = {s::kPaperSize, s::kPaperType, s::kPaperTray};
constexpr UIMoleculeRecord kSheetsRight[] = {s::kCovers, s::kBannerSheet};
constexpr UIColumnRecord kSheetsColumns[] = {left(kSheetsLeft), right(kSheetsRight)};
constexpr UIColumnRecord kFinishingColumns[] = {wide(kFinishing)};
constexpr UIColumnRecord kUnitsColumns[] = {wide(kUnits)};
constexpr UIColumnRecord kPolicyColumns[] = {wide(kPolicy)};
constexpr UIColumnRecord kQuickColumns[] = {wide(kQuick)};
constexpr UIContainerRecord kPreferences[] = {page(1, O7STR_TAB_SHEETS, kSheetsColumns),
                                              page(2, O7STR_TAB_FINISHING, kFinishingColumns)};
constexpr UIContainerRecord kDevice[] = {page(1, O7STR_TAB_INSTALLED, kUnitsColumns)};
constexpr UIContainerRecord kDefaults[] = {page(2, O7STR_TAB_FINISHING, kFinishingColumns),
                                           page(3, O7STR_TAB_POLICY, kPolicyColumns)};
constexpr UIContainerRecord kDialogs[] = {quick(4, kQuickColumns)};
constexpr UIRootRecord kRoots[] = {
    sheet(kFamily, UIMode::PrintingPreferences, O7STR_CAPTION_PREFERENCES, kPreferences),
    sheet(kFamily, UIMode::DeviceSettings, O7STR_CAPTION_DEVICE, kDevice),
    compact(kFamily, kDialogs),
    sheet(kFamily, UIMode::PrintingDefaults, O7STR_CAPTION_DEFAULTS, kDefaults),
};
} // namespace production

// 8432: a small monochrome device; it has no compact dialog and no page of defaults
namespace monochrome {
constexpr auto kFamily = DataModelIds::kValueFamily8432;
constexpr UIMoleculeRecord kBasics[] = {s::kPaperSize, s::kPaperTray, s::kSides, s::kTonerSaving};
constexpr UIMoleculeRecord kService[] = {s::kTrays, s::kDuplexUnit, s::kBidirectional};
constexpr UIColumnRecord kBasicsColumns[] = {wide(kBasics)};
constexpr UIColumnRecord kServiceColumns[] = {wide(kService)};
constexpr UIContainerRecord kPreferences[] = {page(1, O7STR_TAB_BASICS, kBasicsColumns)};
constexpr UIContainerRecord kDevice[] = {page(1, O7STR_TAB_SERVICE, kServiceColumns)};
constexpr UIRootRecord kRoots[] = {
    sheet(kFamily, UIMode::PrintingPreferences, O7STR_CAPTION_PREFERENCES, kPreferences),
    sheet(kFamily, UIMode::DeviceSettings, O7STR_CAPTION_DEVICE, kDevice),
};
} // namespace monochrome

// 8433: a photo device for the desk
namespace photo {
constexpr auto kFamily = DataModelIds::kValueFamily8433;
constexpr UIMoleculeRecord kPictures[] = {s::kPaperType, s::kPrintQuality, s::kResolution,
                                          s::kOptimiseFor, s::kEdgeToEdge};
constexpr UIMoleculeRecord kBasics[] = {s::kPaperSize, s::kOrientation, s::kColourMode};
constexpr UIMoleculeRecord kService[] = {s::kUnits, s::kBidirectional};
constexpr UIMoleculeRecord kQuick[] = {s::kPaperType, s::kPrintQuality, s::kColourMode};
constexpr UIColumnRecord kPicturesColumns[] = {wide(kPictures)};
constexpr UIColumnRecord kBasicsColumns[] = {wide(kBasics)};
constexpr UIColumnRecord kServiceColumns[] = {wide(kService)};
constexpr UIColumnRecord kQuickColumns[] = {wide(kQuick)};
constexpr UIContainerRecord kPreferences[] = {page(1, O7STR_TAB_PICTURE, kPicturesColumns),
                                              page(2, O7STR_TAB_BASICS, kBasicsColumns)};
constexpr UIContainerRecord kDevice[] = {page(1, O7STR_TAB_SERVICE, kServiceColumns)};
constexpr UIContainerRecord kDefaults[] = {page(1, O7STR_TAB_PICTURE, kPicturesColumns)};
constexpr UIContainerRecord kDialogs[] = {quick(3, kQuickColumns)};
constexpr UIRootRecord kRoots[] = {
    sheet(kFamily, UIMode::PrintingPreferences, O7STR_CAPTION_PREFERENCES, kPreferences),
    sheet(kFamily, UIMode::DeviceSettings, O7STR_CAPTION_DEVICE, kDevice),
    compact(kFamily, kDialogs),
    sheet(kFamily, UIMode::PrintingDefaults, O7STR_CAPTION_DEFAULTS, kDefaults),
};
} // namespace photo

// 8434: a wide device for drawings
namespace drawings {
constexpr auto kFamily = DataModelIds::kValueFamily8434;
constexpr UIMoleculeRecord kLayout[] = {s::kPaperSize, s::kOrientation, s::kScaling,
                                        s::kMirrorImage};
constexpr UIMoleculeRecord kJob[] = {s::kJobType, s::kWatermark, s::kAccounting, s::kTrackJobs};
constexpr UIMoleculeRecord kInstalled[] = {s::kHardDisk, s::kFoldingUnit};
constexpr UIMoleculeRecord kDefaultsRows[] = {s::kScaling, s::kUnits, s::kWarnOnApply};
constexpr UIMoleculeRecord kQuick[] = {s::kPaperSize, s::kOrientation, s::kScaling};
constexpr UIColumnRecord kLayoutColumns[] = {wide(kLayout)};
constexpr UIColumnRecord kJobColumns[] = {wide(kJob)};
constexpr UIColumnRecord kInstalledColumns[] = {wide(kInstalled)};
constexpr UIColumnRecord kDefaultsColumns[] = {wide(kDefaultsRows)};
constexpr UIColumnRecord kQuickColumns[] = {wide(kQuick)};
constexpr UIContainerRecord kPreferences[] = {page(1, O7STR_TAB_LAYOUT, kLayoutColumns),
                                              page(2, O7STR_TAB_JOB, kJobColumns)};
constexpr UIContainerRecord kDevice[] = {page(1, O7STR_TAB_INSTALLED, kInstalledColumns)};
constexpr UIContainerRecord kDefaults[] = {page(3, O7STR_TAB_POLICY, kDefaultsColumns)};
constexpr UIContainerRecord kDialogs[] = {quick(3, kQuickColumns)};
constexpr UIRootRecord kRoots[] = {
    sheet(kFamily, UIMode::PrintingPreferences, O7STR_CAPTION_PREFERENCES, kPreferences),
    sheet(kFamily, UIMode::DeviceSettings, O7STR_CAPTION_DEVICE, kDevice),
    compact(kFamily, kDialogs),
    sheet(kFamily, UIMode::PrintingDefaults, O7STR_CAPTION_DEFAULTS, kDefaults),
};
} // namespace drawings

} // namespace

constexpr o7::FamilyRecords o7::kFamily8431 = production::kRoots;
constexpr o7::FamilyRecords o7::kFamily8432 = monochrome::kRoots;
constexpr o7::FamilyRecords o7::kFamily8433 = photo::kRoots;
constexpr o7::FamilyRecords o7::kFamily8434 = drawings::kRoots;
