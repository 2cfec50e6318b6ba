// The static records that describe a user interface: root, container (page or dialog), column,
// molecule, control. They are constexpr tables (tables/), wrapped at run time by the UIData tree.
//
// Molecules have no position of their own: the layout puts the molecules of a column below each
// other in record order. All lengths are dialog units. All texts are string numbers of the
// product's resources; 0 means none.
#pragma once

#include <cstdint>

#include "datamodelids.h"
#include "uiextrarecords.h"
#include "uikinds.h"
#include "uimode.h"
#include "uirecordlist.h"
#include "uitvrecords.h"

struct UIContainerRecord;

/// One control of a molecule.
///
/// A check box or push button carries its own text as label. An edit, list or spin has none: the
/// Text record that stands before it in the molecule names the same feature and carries the label
/// with the mnemonic, so the label is greyed with its control. In a check-box molecule a Text
/// record *after* the Check record is the second text.
struct UIControlRecord
{
    UIControlKind kind = UIControlKind::Plain;
    DataModelIds::tagFeatureEnum feature = DataModelIds::kNoFeature;
    std::uint32_t label = 0;
    std::uint32_t style = 0; ///< Window style bits added to those of the control class.
    UIExtraRecord extra{};
};

/// One molecule of a column or of another molecule.
struct UIMoleculeRecord
{
    UIMoleculeKind kind = UIMoleculeKind::Text;
    UIRecords<UIControlRecord> controls{};
    UIRecords<UIMoleculeRecord> children{};
    const UIContainerRecord* nested = nullptr; ///< Kind Container only.
    std::uint32_t title = 0;                   ///< Caption of a group box; plain text.
    std::int8_t featureState = 0; ///< Positive: the molecule counts as having a feature's state.
    std::int32_t labelWidth = 0;  ///< Room for its label beside the box; 0: as its column says.
    std::uint8_t indent = 0;      ///< Levels of indentation under the molecule above.
    bool raisedHeight = false;    ///< Leaves room for a button beside the control.
    bool ownFeatureList = false;  ///< Works on the list of features being edited, not the job's.
};

/// One column of a page.
struct UIColumnRecord
{
    std::int32_t x = 0;
    std::int32_t width = 0;
    std::int32_t labelWidth = 0; ///< Room for labels beside their boxes; 0: labels stand above.
    UIRecords<UIMoleculeRecord> molecules{};
};

/// What a button in the bottom row of a dialog does.
enum class UIDialogActionKind : std::uint32_t
{
    Accept = 1, ///< Ends the dialog; what was changed in it is kept.
    Cancel = 2, ///< Ends the dialog; what was changed in it is dropped.
    Help = 9,   ///< Opens the help of the dialog.
};

/// One push button in the bottom row of a dialog, from left to right.
struct UIDialogActionRecord
{
    UIDialogActionKind kind = UIDialogActionKind::Accept;
    std::uint32_t label = 0;
    bool isDefault = false;
};

/// A feature that belongs to a page although no control shows it: it is collected, saved and reset
/// together with the page's settings.
struct UISimpleFeatureRecord
{
    DataModelIds::tagFeatureEnum feature = DataModelIds::kNoFeature;
};

/// A feature whose change makes the whole page react: it reports a button action to the model.
struct UIFeatureObserverRecord
{
    DataModelIds::tagFeatureEnum feature = DataModelIds::kNoFeature;
    std::uint32_t action = 0;
};

/// One page: a tab, a dialog or the inside of a Container molecule.
struct UIContainerRecord
{
    std::uint32_t id = 0; ///< Tab number, unique in its root; a dialog's DialogId,
                          ///< which the pages of a popup tab set share.
    std::uint32_t title = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    UIRecords<UIColumnRecord> columns{};
    UIRecords<UIDialogActionRecord> dialogActions{};
    UIRecords<UISimpleFeatureRecord> simpleFeatures{};
    UIRecords<UIFeatureObserverRecord> featureObservers{};
    bool validateOnLeave = false; ///< Leaving the page validates it as Apply would.
    std::uint32_t helpContext = 0;
};

/// One whole user interface: what one device family shows in one mode.
struct UIRootRecord
{
    DataModelIds::tagValueEnum family = DataModelIds::kNoValue;
    UIMode mode = UIMode::PrintingPreferences;
    std::uint32_t caption = 0;
    UIRecords<UIContainerRecord> tabs{};
    UIRecords<UIContainerRecord> dialogs{};
    const UITvTabRecord* tvTab = nullptr;   ///< Tree-view page, when the interface has one.
    UIRecords<UIContainerRecord> offTabs{}; ///< Areas in the sheet's window, under the pages.
};
