// The numbers of the driver's data model. They are blocks of one numbering: features below 5000,
// values from 5001, events 21000, feature changes 22000, settings instances 23000, observer kinds
// 26000. The enumerations are open: a product may use any further number of a block, so a cast from
// int is the ordinary way to get one, and a switch needs a default.
#pragma once

#include <cstdint>

namespace DataModelIds {

/// One feature. Only the numbers that code refers to have names; products declare the rest.
enum tagFeatureEnum : std::int32_t
{
    kFeatureByName = 0, ///< Known by its name alone until a data model resolves it.
    kNoFeature = 1,     ///< Bound to nothing.

    kFeatureFirstDialogTrigger = 95,
    kFeatureSecondDialogTrigger = 176,
    kFeatureSelectedItem = 220, ///< The item that a Remove button would remove.
    kFeaturePrinterName = 255,  ///< Its value's display string is the printer's name.
    kFeatureDeviceAddress = 257,
    kFeatureDialogSelector = 264,
    kFeatureControllerFamily = 285, ///< Selects the family of UI description.
    kFeatureJobTracker = 421,
    kFeatureApplyResult = 545,
    kFeatureSelectedItemFallback = 565, ///< Names the item while 220 is unspecified.
    kFeatureApplyIsValid = 1781,
    kFeatureDoNotShowAgain = 1807,
    kFeatureSelectedItemText = 1842, ///< Names the item while 220 has value 7283.
    kFeatureShownOnceText = 1897,
    kFeatureThirdDialogTrigger = 1926,
    kFeatureWatermarkName = 1979,
    kFeatureWatermarkType = 1980,
    kFeatureWatermarkText = 1981,
    kFeatureWatermarkTimeFormat = 1982,
};

/// One value of an option feature.
enum tagValueEnum : std::int32_t
{
    kValueByName = 0,         ///< Exists by its name alone (a user-defined paper).
    kNoValue = 1,             ///< "No value": the result of a read that found none.
    kValueUnspecified = 5001, ///< The entry of an option list for "unspecified": never a value.
    kValueItemNamedByText = 7283,
    kValueDialogSelected = 7830,
    kValueJobTrackerOn = 8202,
    kValueFamily8430 = 8430,
    kValueFamily8431 = 8431,
    kValueFamily8432 = 8432,
    kValueFamily8433 = 8433,
    kValueFamily8434 = 8434,
    kValueApplyRejected = 8691,
    kValueFirstUserText = 9579, ///< From here on a value's name is a text of the user's.
    kValueWatermarkType0 = 20632,
    kValueWatermarkType1 = 20633,
    kValueWatermarkType2 = 20634,
    kValueWatermarkTimeFormat0 = 20635,
};

/// What happened in the UI (or in the model) and is told through the notification sink.
enum EventEnum : std::int32_t
{
    kEventButton = 21001, ///< A button whose action has no event of its own.
    /// The whole UI was left with OK. Observers are told first, so that what they write is accepted
    /// with the rest; nothing is stored yet. Then the current settings become the accepted ones.
    kEventOk = 21002,
    kEventCancelQueried = 21003, ///< Cancel was asked for: the accepted settings come back.
    kEventApply = 21004,         ///< Like OK, but the UI stays.
    kEventTab21005 = 21005,
    kEventButtonAction14 = 21007,
    kEventButtonAction15 = 21008, ///< Remove the item that is named by the feature.
    kEventButtonAction16 = 21009,
    kEventButtonAction17 = 21010,
    kEventButtonAction18 = 21011,
    kEventButtonAction19 = 21012,
    kEventButtonAction35 = 21013,
    kEventButtonAction30 = 21014,
    kEventButtonAction3 = 21015,
    kEventTab21017 = 21017,
    kEventPageActivated = 21020,
    kEventButtonAction11 = 21023,
    kEvent21042 = 21042,
    kEventButtonAction37 = 21044,
    kEventButtonAction38 = 21045,
    kEventButtonAction34 = 21046,
    kEventTab21056 = 21056,
    kEventButtonAction40 = 21059,
    kEventButtonAction39 = 21097,
    kEventButtonAction41 = 21099,
    kEventButtonAction45Or46 = 21106,
    kEventSheetSubclassed = 21115, ///< The sheet window is known and subclassed.
    kEventFirstPaintDone = 21123,

    /// The settings were accepted, after OK or Apply and with the parameter of that event: the time
    /// to store them. Told by the model alone (sent to its sink it does nothing), and only when
    /// they were accepted: not when feature 545 rejects them, not when an observer of OK or Apply
    /// throws. Whoever cannot store throws, and the former settings are the accepted ones again.
    kEventAccepted = 21901,
};

/// Which side of a feature a FeatureChangeNotification tells of.
enum FeatureChangeEnum : std::int32_t
{
    kFeatureValueChanged = 22001,
    kFeatureConstraintStateChanged = 22002,
};

/// Which settings an observer registers for, and which a notification tells of. Registering for
/// the current settings delivers both the values (23002) and the constraint states (23004);
/// registering for one of those two delivers that one alone.
enum SettingsEnum : std::int32_t
{
    kSettingsCurrent = 23001,
    kSettingsValue = 23002,
    kSettingsConstraintState = 23004,
};

/// The kind of an observer registration; handed back to the observer with every notification.
enum ObserverKindEnum : std::int32_t
{
    kObserverFeature = 26010,
    kObserverEvent = 26014,
};

/// Which capability of a feature a CapabilityIdWithContext means.
enum CapabilityTypeEnum : std::int32_t
{
    kCapabilityState = 1,
    kCapabilityOptions = 2,
    kCapabilityRange = 3,
};

/// How a condition compares a feature with its value set.
enum tagComparisonEnum : std::int32_t
{
    kEqual = 1,
    kNotEqual = 2,
    kLess = 3,
    kLessOrEqual = 4,
    kGreater = 5,
    kGreaterOrEqual = 6,
    kBetween = 7, ///< The set is a lowest and a highest value, both included.
    kOutside = 8, ///< Below the lowest or above the highest.
};

/// Whether a condition holds for the values of its set or for all others.
enum tagSetIncludeOrExcludeEnum : std::int32_t
{
    kInclude = 1,
    kExclude = 2,
};

} // namespace DataModelIds
