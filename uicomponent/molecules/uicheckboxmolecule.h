#pragma once

#include <memory>

#include "datamodelids.h"
#include "uifeaturemolecule.h"
#include "uimoleculelabel.h"

class UICheckBoxControl;
class UIImageControl;
class UIImageControlData;
class UITextControl;

/// A check box, bound to a boolean feature or to an option feature with one value that means
/// checked and one that means unchecked. The box's text is the check control's own; a text record
/// before the check makes a label for the whole, one behind it a second text that may toggle the
/// box. A picture record makes a picture that mirrors the setting. Texts take further lines where
/// one is too short.
class UICheckBoxMolecule : public UIFeatureMolecule
{
public:
    UICheckBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UICheckBoxMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void Refresh() override;
    void MoveControls(POINT delta) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    bool IsHiddenBySetting() const override { return m_hiddenBySetting; }
    /// Keeps the check box off the page, whatever its feature says; takes effect at once.
    void SetHiddenBySetting(bool hidden);
    void DumpControls() const override;
    void Show(bool shown) override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    HWND InfoAnchor() const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;

private:
    bool IsRequired() const;
    bool IsBoolean() const { return m_checkedValue == DataModelIds::kNoValue; }
    /// From the left edge of the molecule to that of the check control.
    long GetCheckX() const;
    /// Room for check control and second text together, when the molecule is that wide.
    long GetTextWidth(long width) const;
    void UpdateMinimumHeight();
    /// BST_CHECKED, BST_UNCHECKED, or BST_INDETERMINATE when the feature cannot be read.
    WPARAM ReadCheck() const;
    void ShowCheck(WPARAM check);
    void ShowOnDependants();
    void WriteCheck();
    void Toggle();

    UIMoleculeLabel m_label;
    std::unique_ptr<UICheckBoxControl> m_check;
    std::unique_ptr<UITextControl> m_secondText;
    std::unique_ptr<UIImageControl> m_image;
    const UIImageControlData* m_imageData = nullptr;
    DataModelIds::tagValueEnum m_checkedValue = DataModelIds::kNoValue;
    DataModelIds::tagValueEnum m_uncheckedValue = DataModelIds::kNoValue;
    unsigned m_checkText = 0;
    unsigned m_secondTextNumber = 0;
    long m_boxHeight = 0;  ///< without the label above
    long m_checkWidth = 0; ///< of the check control beside a second text; 0: half of the room
    long m_checkLines = 1;
    long m_secondLines = 1;
    bool m_threeState = false;
    bool m_secondTextToggles = false;
    bool m_hiddenBySetting = false;
    bool m_cleared = false;
    WPARAM m_shownCheck = BST_UNCHECKED;
};
