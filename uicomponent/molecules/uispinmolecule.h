#pragma once

#include <cstdint>
#include <optional>

#include "uinumberfield.h"
#include "uinumbermolecule.h"

class RangeCapability;
class UISpinControlData;

/// A box for a whole number with arrows, and the text of its unit behind it.
class UISpinMolecule : public UINumberMolecule
{
public:
    UISpinMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UISpinMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void CreateControls(UIPageWindow& page) override;
    bool Validate() override;
    void CollectWantedMessages(UIMessageMask& mask) const override;
    void DumpControls() const override;
    void Show(bool shown) override;
    HWND InfoAnchor() const override;
    bool HasPendingInput() const override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    bool TakeControl(const UIControlData& control) override;
    long GetNumberHeight() const override { return UINumberField::kHeight; }
    void ShowNumber(std::optional<std::int64_t> value) override;
    void EnableNumber(bool enabled) override;
    void RenewRules() override;

    /// How the values of the feature are written, and which are allowed.
    virtual UINumberRules MakeRules();
    /// The text of the unit behind the box, for metric units and for others; empty for none.
    virtual CXString GetUnitText(bool metric) const;
    /// @return false when the model did not take it.
    virtual bool WriteNumber(std::int64_t value);

    /// The control record of the box; null when the description has none.
    const UISpinControlData* GetSpinData() const { return m_spinData; }

private:
    UINumberField m_field;
    const UISpinControlData* m_spinData = nullptr;
};
