// Groups and pages that several device families show alike. What only one family has stands in its
// own file.
#pragma once

#include "settings.h"

namespace o7::shared {

namespace s = o7::settings;

// Paper and job
inline constexpr UIMoleculeRecord kJobGroup[] = {s::kJobType, s::kCopies, s::kCollate};
inline constexpr UIMoleculeRecord kSidesColourGroup[] = {s::kSides, s::kColourMode};
inline constexpr UIMoleculeRecord kDataGroup[] = {s::kFonts, s::kImageCompression,
                                                  s::kPrintAsPicture, s::kErrorReport};
inline constexpr UIMoleculeRecord kAccountsGroup[] = {s::kAccounting, s::kAccountKind,
                                                      s::kAccountId, s::kUserId};
inline constexpr UIMoleculeRecord kNotifyGroup[] = {s::kTrackJobs, text<O7STR_T_TRACKING, 2>(),
                                                    s::kNotifyWhenDone};
inline constexpr UIMoleculeRecord kTrackingGroup[] = {s::kTrackJobs, text<O7STR_T_TRACKING, 2>()};
inline constexpr UIMoleculeRecord kMessagesGroup[] = {s::kTrackJobs, s::kNotifyWhenDone,
                                                      s::kMessageAddress};
inline constexpr UIMoleculeRecord kUnitsGroup[] = {s::kUnits, text<O7STR_T_UNITS, 2>()};
inline constexpr UIMoleculeRecord kApplyGroup[] = {s::kWarnOnApply, text<O7STR_T_APPLY, 2>()};
inline constexpr UIMoleculeRecord kConnectionGroup[] = {s::kBidirectional,
                                                        text<O7STR_T_CONNECTION, 2>()};
inline constexpr UIMoleculeRecord kRegionGroup[] = {s::kPaperRegion};
inline constexpr UIMoleculeRecord kDeviceGroup[] = {s::kDeviceLocation, s::kDeviceContact};
inline constexpr UIMoleculeRecord kSecurityGroup[] = {s::kEncryptionKit, s::kCardReader,
                                                      text<O7STR_T_SECURITY, 2>()};

inline constexpr UIMoleculeRecord kAccountsAndTracking[] = {
    group(O7STR_G_ACCOUNTING, kAccountsGroup), group(O7STR_G_TRACKING, kNotifyGroup)};
inline constexpr UIMoleculeRecord kApplyOnly[] = {group(O7STR_G_APPLY, kApplyGroup)};
inline constexpr UIMoleculeRecord kRegionOnly[] = {group(O7STR_G_REGION, kRegionGroup)};

/// The address for tracking travels with a page of job options although nobody types it there.
inline constexpr UISimpleFeatureRecord kJobFeatures[] = {{DataModelIds::kFeatureDeviceAddress}};

// Device settings: page "Trays"
inline constexpr UIMoleculeRecord kTray1Group[] = {s::kTray1Size, s::kTray1Type};
inline constexpr UIMoleculeRecord kTray2Group[] = {s::kTray2Size, s::kTray2Type};
inline constexpr UIMoleculeRecord kTray3Group[] = {s::kTray3Size, s::kTray3Type};
inline constexpr UIMoleculeRecord kTray4Group[] = {s::kTray4Size, s::kTray4Type};
inline constexpr UIMoleculeRecord kTraysLeft[] = {group(O7STR_G_TRAY_1, kTray1Group),
                                                  group(O7STR_G_TRAY_2, kTray2Group)};
inline constexpr UIMoleculeRecord kTraysRight[] = {group(O7STR_G_TRAY_3, kTray3Group),
                                                   group(O7STR_G_TRAY_4, kTray4Group)};
inline constexpr UIColumnRecord kTraysColumns[] = {left(kTraysLeft), right(kTraysRight)};
inline constexpr UIContainerRecord kTraysPage = devicePage(2, O7STR_TAB_TRAYS, kTraysColumns);

// Device settings: page "Policies"
inline constexpr UIMoleculeRecord kPoliciesGroup[] = {s::kColourPolicy, s::kSidesPolicy,
                                                      s::kHoldPolicy, text<O7STR_T_POLICIES, 2>()};
inline constexpr UIMoleculeRecord kAccountPoliciesGroup[] = {s::kBannerPolicy, s::kAccountRequired};
inline constexpr UIMoleculeRecord kPoliciesLeft[] = {group(O7STR_G_POLICIES, kPoliciesGroup)};
inline constexpr UIMoleculeRecord kPoliciesRight[] = {
    group(O7STR_G_ACCOUNTING, kAccountPoliciesGroup), group(O7STR_G_REGION, kRegionGroup)};
inline constexpr UIColumnRecord kPoliciesColumns[] = {left(kPoliciesLeft), right(kPoliciesRight)};
inline constexpr UIContainerRecord kPoliciesPage =
    devicePage(4, O7STR_TAB_POLICY, kPoliciesColumns);

// The message that a job cannot be tracked
inline constexpr UIMoleculeRecord kTrackingOffGroup[] = {text<O7STR_T_TRACKING_OFF, 2>(),
                                                         s::kDoNotShowAgain};
inline constexpr UIColumnRecord kTrackingOffColumns[] = {wide(kTrackingOffGroup)};
inline constexpr UIContainerRecord kTrackingOffDialog =
    dialog(DialogId::JobTrackingOff, O7STR_DIALOG_TRACKING_OFF, 75, kTrackingOffColumns, kOkOnly);

} // namespace o7::shared
