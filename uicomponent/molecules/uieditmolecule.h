#pragma once

#include <memory>

#include "uifeaturemolecule.h"
#include "uimoleculelabel.h"
#include "uitypedfield.h"

class UIEditControlData;
class UINumberField;
class UITextField;

/// A labelled box for a text or a whole number without arrows. Which of the two is decided by the
/// kind of the feature when the box is created.
class UIEditMolecule : public UIFeatureMolecule
{
public:
    UIEditMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIEditMolecule() override;

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
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;

private:
    long BoxHeight() const;
    void UpdateMinimumHeight();
    void CreateNumber(UIPageWindow& page, POINT place, long width);
    void CreateText(UIPageWindow& page, POINT place, long width);
    UITypedField::Surroundings FieldSurroundings() const;
    bool WriteNumber(int value);
    bool WriteText(const CXString& text);

    UIMoleculeLabel m_label;
    const UIEditControlData* m_editData = nullptr;
    std::unique_ptr<UINumberField> m_number; ///< one of these two
    std::unique_ptr<UITextField> m_text;
    UITypedField* m_field = nullptr;
    bool m_cleared = false;
};
