#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "cxstring.h"
#include "featureidwithcontext.h"
#include "interpretedstate.h"
#include "iobserver.h"
#include "listoffeaturesref.h"
#include "uimessagemask.h"
#include "uimoleculeroot.h"
#include "uimoleculesite.h"
#include "uipagewindow.h"
#include "uiwindowsmessage.h"

class CapabilitiesNode;
class SetOfSettingIds;
class UIInfoButtonControl;
class UIMoleculeData;
class UIPageLook;
class UITextRuler;
class UIToolTips;

/// The unit that binds a few controls to one feature of the data model. A page holds its molecules
/// in a UIMoleculeContainer, which drives them in this order: InitializeFromDescription,
/// SetPosition, CreateControls, ConnectToDataModel, then messages and notifications in any order,
/// DisconnectFromDataModel, destructor. Positions and sizes are dialog units until the controls are
/// created. The virtual operations keep their order; additions go last.
class UIMolecule : public UIMoleculeRoot, public IObserver
{
public:
    /// Which of the two marks the info button carries.
    enum class InfoStyle : std::uint32_t
    {
        None = 0,
        Information = 1,
        Conflict = 2
    };

    UIMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    UIMolecule(const UIMolecule&) = delete;
    UIMolecule& operator=(const UIMolecule&) = delete;
    ~UIMolecule() override;

    /// @return true when the message was meant for this molecule and is dealt with.
    virtual bool HandleMessage(const _UIWindowsMessage& message);
    /// Brings the controls up to date after the page has been built or left.
    virtual void Refresh();
    /// True when a setting of the molecule itself, not the data model, keeps it off the page.
    virtual bool IsHiddenBySetting() const;
    /// Moves the molecule to a place on the page, its controls with it.
    virtual void SetPosition(POINT position);
    /// The smallest size that the molecule may be given; the second member is the height.
    virtual void SetMinimumExtent(SIZE extent);
    virtual void SetPositionAndWidth(POINT position, long width);
    /// Keeps the molecule off the page (false) whatever the data model says.
    virtual void SetShownOnPage(bool shown);
    virtual void SetToolTips(UIToolTips* toolTips);
    /// Keeps the molecule disabled whatever the data model says.
    virtual void SetForceDisabled(bool disabled);
    /// Creates the child windows on the page, at the molecule's position.
    virtual void CreateControls(UIPageWindow& page) = 0;
    /// What all molecules do alike with a message that their own handling left over.
    virtual bool ProcessCommonMessage(const _UIWindowsMessage& message);
    /// Asked when the page is applied or left: false keeps the page open.
    virtual bool Validate();
    /// Called when the page is left.
    virtual void LeavePage();
    virtual void ConnectToDataModel();
    virtual void DisconnectFromDataModel();
    /// 1 when the description marks the molecule as one whose state counts for its page; 2 when it
    /// does not, and for a molecule that is bound to nothing.
    virtual int GetFeatureState() const;
    virtual void ShowInfoButton(bool shown);
    /// Called after the page's resolution or theme changed.
    virtual void LookChanged();
    /// Adds the settings that the molecule shows.
    virtual void CollectSettings(SetOfSettingIds& settings) const;
    /// Shows, restyles or removes the info button according to the feature's messages.
    virtual void UpdateInfoButton(const FeatureIdWithContext& feature,
                                  const InterpretedState& state);
    /// Reads the control records: bound feature, options, heights.
    virtual void InitializeFromDescription() = 0;
    /// The list in which the molecule resolves its features: its own copy of the one that the page
    /// works on when the description says so, otherwise the one that the model has for its feature.
    virtual ListOfFeaturesRef GetMoleculeFeatures();
    /// Distance in dialog units by which the molecule stands in from its column's left edge.
    virtual long GetIndent() const;
    /// Further space in dialog units that the molecule asks for.
    virtual SIZE GetExtraExtent() const;
    virtual bool HasInfoMessage() const;
    virtual bool HasConflictMessage() const;
    /// Why the molecule is limited, asked of the model now: the conflict text when there is
    /// one, else the information text, else the reason why it is disabled, cleared or hidden.
    /// Empty when nothing limits it.
    virtual CXString GetInfoText() const;
    /// Lets a subclass change a text before it is shown.
    virtual CXString DecorateText(const CXString& text) const;

    // Additions of this module, after the fixed order.

    /// Adds the messages that the molecule may claim.
    virtual void CollectWantedMessages(UIMessageMask& mask) const;
    /// Writes one line per control to the collector of UIDump: kind, text, value, state, reason.
    virtual void DumpControls() const;
    /// The molecules that stand inside this one (a group's), in Tab order.
    virtual void Inner(std::vector<UIMolecule*>& molecules);
    /// Moves all controls by a difference in dialog units; the info button goes along by itself.
    virtual void MoveControls(POINT delta);
    /// Shows or hides all controls.
    virtual void Show(bool shown);
    /// The window beside which the info button stands, centred on its height; null for none.
    virtual HWND InfoAnchor() const;

    /// Whether something typed has not been taken into the model (yet): the sheet counts as
    /// changed.
    virtual bool HasPendingInput() const;
    /// Moves the keyboard focus to the control, or to the info button while it is disabled.
    /// @return false when neither can take it.
    virtual bool Focus();
    /// Called with the width that the molecule is about to get, before the controls are created:
    /// changes the minimum height to what the texts need in the page's font. Widths that the record
    /// fixes stay.
    virtual void FitTexts(const UITextRuler& ruler, long width);
    /// The room that the label wants beside its box; 0 without a label.
    virtual long GetWantedLabelWidth(const UITextRuler& ruler) const;

    /// What the messages of the info button are about; the name of the setting.
    virtual CXString GetInfoTitle(const FeatureIdWithContext& feature) const;

    /// The child-window ids that CreateControls took: from the first up to, not including, the end.
    void SetControlIds(int first, int end);
    /// Whether a window is one of the molecule's own controls, or stands inside one.
    bool OwnsControl(HWND window) const;
    /// Offers the ways out of the conflict that the mark tells of, if there are any; soon.
    void OfferWaysOut() const;
    /// Whether the control that stands for the feature could not be created.
    bool LacksControl() const;

    /// Room in dialog units for a label beside its box; 0 puts labels above. Set by the column
    /// before InitializeFromDescription. A molecule whose description says a width keeps that one.
    void SetLabelWidth(long width);
    long GetLabelWidth() const { return m_labelWidth; }

    // IObserver
    void ProcessNotification(const INotification& notification, unsigned int kind) override;
    CXString GetObserverClassNameHeirarchy() const override;
    CXString GetDumpDisplayString(bool detailed) const override;

    /// @return height in dialog units, gap to the next molecule not included.
    long GetMinimumHeight() const { return m_minimumExtent.cy; }
    POINT GetPosition() const { return m_position; }
    long GetWidth() const { return m_width; }
    const UIMoleculeData& GetData() const { return m_data; }
    const FeatureIdWithContext& GetBoundFeature() const { return m_feature; }

    /// Width in dialog units that every molecule keeps free at its right for the info button.
    static constexpr long kInfoLane = 12;

protected:
    const UIMoleculeSite& GetSite() const { return m_site; }
    UIToolTips* GetToolTips() const { return m_toolTips; }
    bool IsForceDisabled() const { return m_forceDisabled; }
    /// The state of the bound feature now, disabled also where the feature is only for reading or
    /// the molecule forced to be so, with a reason for that. None without a feature.
    std::optional<InterpretedState> ReadState() const;
    /// Lets a subclass add what its controls show of the capabilities beside the state itself.
    virtual void CompleteState(const CapabilitiesNode& capabilities, InterpretedState& state) const;
    /// Whether a person cannot change it, however it stands: read-only, or told by the device.
    static bool IsOnlyShown(const CapabilitiesNode& capabilities);
    /// Where the molecule finds a feature that its description names: inside the page's list when
    /// it works on that. For a feature beside the bound one; SetBoundFeature does it by itself.
    FeatureIdWithContext InFeatureList(const FeatureIdWithContext& feature) const;
    /// What the info button says now; empty when there is none.
    const CXString& GetShownInfoText() const { return m_infoText; }
    /// Null before the controls are created.
    bool IsShownOnPage() const { return m_shownOnPage; }
    bool IsBound() const;
    HWND GetPage() const { return m_page; }
    /// Remembers the page for the controls that come later (the info button).
    void SetPage(UIPageWindow& page);
    /// Width in dialog units of what the molecule shows, the lane of the info button left free.
    long GetContentWidth() const { return m_width - kInfoLane; }
    /// The text of a string resource, decorated; empty for number 0.
    CXString LoadText(unsigned number) const;
    void SetBoundFeature(const FeatureIdWithContext& feature);

private:
    bool ColourControl(const _UIWindowsMessage& message) const;
    void CreateInfoButton(const FeatureIdWithContext& feature);

    const UIMoleculeData& m_data;
    UIMoleculeSite m_site;
    ListOfFeaturesRef m_ownFeatures;
    POINT m_position{};
    long m_width = 0;
    long m_labelWidth = 0;
    SIZE m_minimumExtent{};
    bool m_shownOnPage = true;
    bool m_forceDisabled = false;
    std::unique_ptr<UIInfoButtonControl> m_infoButton;
    FeatureIdWithContext m_feature;
    UIToolTips* m_toolTips = nullptr;
    HWND m_page = nullptr;
    UIPageLook* m_look = nullptr;
    int m_infoButtonId = 0;
    int m_firstId = 0;
    int m_endId = 0;
    InfoStyle m_infoStyle = InfoStyle::None;
    CXString m_infoText;
};
