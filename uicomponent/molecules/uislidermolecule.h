#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "uinumbermolecule.h"
#include "uinumberrules.h"

class UISliderControl;
class UISliderControlData;
class UITextControl;

/// A slider over a whole number, with its present value behind it and texts under its ends. While
/// the thumb is dragged the value is shown; it is written when the thumb is let go.
class UISliderMolecule : public UINumberMolecule
{
public:
    UISliderMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UISliderMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void CreateControls(UIPageWindow& page) override;
    void CollectWantedMessages(UIMessageMask& mask) const override;
    void DumpControls() const override;
    void Show(bool shown) override;
    HWND InfoAnchor() const override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    bool TakeControl(const UIControlData& control) override;
    long GetNumberHeight() const override;
    void ShowNumber(std::optional<std::int64_t> value) override;
    void EnableNumber(bool enabled) override;
    void RenewRules() override;

private:
    long EndsHeight() const;
    void FitEnds(const UITextRuler& ruler, long width);
    void CreateSlider(UIPageWindow& page, POINT place, long width);
    void CreateEnds(UIPageWindow& page, POINT place, long width);
    std::unique_ptr<UITextControl> CreateText(UIPageWindow& page, POINT place, long width,
                                              DWORD style) const;
    void ReadRules();
    /// Of the track.
    UINumberRules::Range Ends() const;
    void Slid(int code);
    std::int64_t PositionFor(int code) const;
    void ShowNumberText(const CXString& text);
    template <class Do> void ForTexts(Do&& act) const;

    UINumberRules m_rules;
    const UISliderControlData* m_sliderData = nullptr;
    std::unique_ptr<UISliderControl> m_slider;
    std::unique_ptr<UITextControl> m_number;
    std::unique_ptr<UITextControl> m_lowEnd;
    std::unique_ptr<UITextControl> m_highEnd;
    std::optional<std::int64_t> m_value;
    long m_lowEndWidth = 0; ///< 0: half of the slider
};
