#pragma once

#include <cstdint>
#include <optional>

#include "uifeaturemolecule.h"
#include "uimoleculelabel.h"
#include "uimoleculeswitch.h"
#include "uinumberfield.h"

class RangeCapability;
class UISpinControlData;

/// A box for a whole number with arrows, the text of its unit behind it, and a label or a check box
/// in its place. The check box stands for a boolean feature or for whether the number is specified.
class UISpinMolecule : public UIFeatureMolecule
{
public:
    UISpinMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UISpinMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void SetPosition(POINT position) override;
    void CreateControls(UIPageWindow& page) override;
    bool Validate() override;
    void InitializeFromDescription() override;
    void CollectWantedMessages(UIMessageMask& mask) const override;
    void DumpControls() const override;
    void Show(bool shown) override;
    HWND InfoAnchor() const override;
    bool HasPendingInput() const override;
    bool Focus() override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;
    void CompleteState(const CapabilitiesNode& capabilities,
                       InterpretedState& state) const override;

    /// How the values of the feature are written, and which are allowed.
    virtual UINumberRules MakeRules();
    /// The text of the unit behind the box, for metric units and for others; empty for none.
    virtual CXString GetUnitText(bool metric) const;
    /// The model's value; nothing when the feature cannot be read.
    virtual std::optional<std::int64_t> ReadNumber() const;
    /// @return false when the model did not take it.
    virtual bool WriteNumber(std::int64_t value);

    /// The control record of the box; null when the description has none.
    const UISpinControlData* GetSpinData() const { return m_spinData; }
    /// Takes rules that have changed over, and shows the value in them.
    void RenewRules();

private:
    bool IsSwitchBeside() const { return m_label.IsEmpty() && m_switch.Exists() && m_switchWidth; }
    long BesideWidth() const;
    long HeightAbove() const;
    void UpdateMinimumHeight();
    bool WriteAndReadBack(std::int64_t value);

    UIMoleculeLabel m_label;
    UIMoleculeSwitch m_switch;
    long m_switchWidth = 0; ///< room of the check box beside the box; 0: it stands above
    UINumberField m_field;
    const UISpinControlData* m_spinData = nullptr;
    bool m_cleared = false;
};
