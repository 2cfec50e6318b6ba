#pragma once

#include <memory>

#include "datamodelids.h"
#include "uifeaturemolecule.h"

class UICheckBoxControl;
class UITextControl;

/// A check box, bound to a boolean feature or to an option feature with one value that means
/// checked and one that means unchecked. The label is the check control's own text; a text record
/// before the check makes a heading, one behind it a second text that may toggle the box.
class UICheckBoxMolecule : public UIFeatureMolecule
{
public:
    UICheckBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UICheckBoxMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void SetPosition(POINT position) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    bool IsHiddenBySetting() const override { return m_hiddenBySetting; }
    /// Keeps the check box off the page, whatever its feature says.
    void SetHiddenBySetting(bool hidden) { m_hiddenBySetting = hidden; }
    void DumpControls() const override;
    void Show(bool shown) override;
    HWND InfoAnchor() const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;

private:
    bool IsBoolean() const { return m_checkedValue == DataModelIds::kNoValue; }
    /// BST_CHECKED, BST_UNCHECKED, or BST_INDETERMINATE when the feature cannot be read.
    WPARAM ReadCheck() const;
    void ShowCheck(WPARAM check);
    void WriteCheck();
    void Toggle();

    std::unique_ptr<UITextControl> m_label;
    std::unique_ptr<UICheckBoxControl> m_check;
    std::unique_ptr<UITextControl> m_secondText;
    DataModelIds::tagValueEnum m_checkedValue = DataModelIds::kNoValue;
    DataModelIds::tagValueEnum m_uncheckedValue = DataModelIds::kNoValue;
    unsigned m_checkText = 0;
    unsigned m_labelText = 0;
    unsigned m_secondTextNumber = 0;
    bool m_threeState = false;
    bool m_secondTextToggles = false;
    bool m_hiddenBySetting = false;
    bool m_cleared = false;
    WPARAM m_shownCheck = BST_UNCHECKED;
};
