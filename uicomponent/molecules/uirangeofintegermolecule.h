#pragma once

#include <array>
#include <memory>
#include <optional>

#include "rangeofinteger.h"
#include "uifeaturemolecule.h"
#include "uimoleculeswitch.h"
#include "uinumberrules.h"
#include "uitextcontrol.h"

class UISpinControlData;

/// Two boxes for the low and the high end of a range, behind a check box that turns it on. A box
/// whose record names an integer feature writes that; the others write the range feature. The two
/// ends count together: while the low one is above the high one, neither goes into the model.
class UIRangeOfIntegerMolecule : public UIFeatureMolecule
{
public:
    UIRangeOfIntegerMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIRangeOfIntegerMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
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
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;
    void CompleteState(const CapabilitiesNode& capabilities,
                       InterpretedState& state) const override;

private:
    enum Which : std::size_t
    {
        kLow,
        kHigh
    };
    class EndField;
    struct End
    {
        FeatureIdWithContext feature;
        const UISpinControlData* data = nullptr;
        CXString label;
        long labelWidth = 0;
        std::unique_ptr<UITextControl> labelControl;
        std::unique_ptr<EndField> field;
    };

    void AddEnd(const UISpinControlData& data, const CXString& label);
    /// Whether the end is a feature of its own, not one end of the range feature.
    bool IsInteger(const End& end) const;
    UINumberRules MakeRules(const End& end) const;
    void Arrange(long contentWidth);
    void CreateEnd(UIPageWindow& page, Which which, POINT place, long width);
    std::optional<int> ReadEnd(Which which) const;
    bool WriteEnd(Which which, int value);
    void EnableEnds(bool enabled);

    UIMoleculeSwitch m_switch;
    std::array<End, 2> m_ends;
    std::size_t m_known = 0; ///< ends that the description names
    bool m_twoRows = false;
    bool m_cleared = false;
};
