#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "uifeaturemolecule.h"
#include "uimoleculelabel.h"
#include "uimoleculeswitch.h"
#include "uinumberrules.h"

class UISliderControl;
class UISliderControlData;
class UITextControl;

/// A slider over a whole number, with its present value behind it, texts under its ends, and a
/// label or a check box in its place. While the thumb is dragged the value is shown; it is written
/// when the thumb is let go.
class UISliderMolecule : public UIFeatureMolecule
{
public:
    UISliderMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UISliderMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void SetPosition(POINT position) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    void CollectWantedMessages(UIMessageMask& mask) const override;
    void DumpControls() const override;
    void Show(bool shown) override;
    HWND InfoAnchor() const override;
    bool Focus() override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;
    void CompleteState(const CapabilitiesNode& capabilities,
                       InterpretedState& state) const override;

private:
    bool IsSwitchBeside() const { return m_label.IsEmpty() && m_switch.Exists() && m_switchWidth; }
    long BesideWidth() const;
    long HeightAbove() const;
    long EndsHeight() const;
    void FitEnds(const UITextRuler& ruler, long width);
    void UpdateMinimumHeight();
    void CreateSlider(UIPageWindow& page, POINT place, long width);
    void CreateEnds(UIPageWindow& page, POINT place, long width);
    std::unique_ptr<UITextControl> CreateText(UIPageWindow& page, POINT place, long width,
                                              DWORD style) const;
    std::optional<int> ReadNumber() const;
    void ReadRules();
    void Slid(int code);
    void ShowNumber(std::optional<int> value);
    void ShowNumberText(const CXString& text);
    void EnableSlider(bool enabled);
    template <class Do> void ForTexts(Do&& act) const;

    UIMoleculeLabel m_label;
    UIMoleculeSwitch m_switch;
    long m_switchWidth = 0; ///< room of the check box beside the box; 0: it stands above
    UINumberRules m_rules;
    const UISliderControlData* m_sliderData = nullptr;
    std::unique_ptr<UISliderControl> m_slider;
    std::unique_ptr<UITextControl> m_number;
    std::unique_ptr<UITextControl> m_lowEnd;
    std::unique_ptr<UITextControl> m_highEnd;
    std::optional<int> m_value;
    long m_lowEndWidth = 0; ///< 0: half of the slider
    bool m_cleared = false;
};
