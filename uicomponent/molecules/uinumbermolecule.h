#pragma once

#include <cstdint>
#include <optional>

#include "uifeaturemolecule.h"
#include "uimoleculelabel.h"
#include "uimoleculeswitch.h"

class UIControlData;

/// Base of the molecules that show one number in a control of its own, with a label or a check box
/// in its place. The check box stands for a boolean feature or for whether the number is specified;
/// beside a label it has a line of its own.
class UINumberMolecule : public UIFeatureMolecule
{
public:
    /// @param switchGap  dialog units between a check box on its own line and what is under it
    UINumberMolecule(const UIMoleculeData& data, const UIMoleculeSite& site, long switchGap);
    ~UINumberMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void InitializeFromDescription() override;
    void Show(bool shown) override;
    bool Focus() override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;
    void CompleteState(const CapabilitiesNode& capabilities,
                       InterpretedState& state) const override;

    /// @return true, and the record kept, when it is the one of the number's control.
    virtual bool TakeControl(const UIControlData& control) = 0;
    /// Height in dialog units of the number's control, with what belongs under it.
    virtual long GetNumberHeight() const = 0;
    /// Nothing: the feature is cleared or cannot be read.
    virtual void ShowNumber(std::optional<std::int64_t> value) = 0;
    virtual void EnableNumber(bool enabled) = 0;
    /// Asks once more which numbers can be chosen.
    virtual void RenewRules() = 0;
    /// The model's value; nothing when the feature cannot be read.
    virtual std::optional<std::int64_t> ReadNumber() const;

    /// By how much the number's control stands to the right of the molecule's place.
    long GetBesideWidth() const;
    /// Where the number's control begins, in dialog units.
    long GetNumberTop() const;
    void CreateLabelAndSwitch(UIPageWindow& page);
    /// What the number is called: the text of the label or of the check box in its place.
    const CXString& GetName() const;
    /// For DumpControls: the line of the check box.
    void DumpSwitch() const { m_switch.Dump(); }

private:
    bool IsSwitchBeside() const { return m_label.IsEmpty() && m_switch.Exists() && m_switchWidth; }
    long HeightAbove() const;
    void UpdateMinimumHeight();

    UIMoleculeLabel m_label;
    UIMoleculeSwitch m_switch;
    long m_switchGap;
    long m_switchWidth = 0; ///< room of the check box beside the number; 0: it stands above
    bool m_cleared = false;
};
