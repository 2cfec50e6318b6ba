#pragma once

#include <memory>

#include "uicombolistbasemolecule.h"
#include "uimoleculelabel.h"

class UIComboBoxControl;

/// A labelled drop-down list of the options of a feature. With a label width the label stands to
/// the left of the list, otherwise above it.
class UIComboBoxMolecule : public UIComboListBaseMolecule
{
public:
    UIComboBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIComboBoxMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void SetPosition(POINT position) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    void LookChanged() override;
    void DumpControls() const override;
    void Show(bool shown) override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    HWND InfoAnchor() const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    IComboListControl* List() const override;
    void EnableControls(bool enabled) override;
    void FillTogether(const std::function<void()>& fill) override;

private:
    void UpdateMinimumHeight();
    bool HandleNotification(int notification);

    UIMoleculeLabel m_label;
    std::unique_ptr<UIComboBoxControl> m_combo;
    long m_boxHeight = 0;           ///< with the room that a button beside the box wants
    bool m_choiceCancelled = false; ///< the list is about to close without a choice
};
