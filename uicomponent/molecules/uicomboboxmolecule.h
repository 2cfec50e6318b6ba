#pragma once

#include <memory>

#include "uicombolistbasemolecule.h"

class UIComboBoxControl;

/// A labelled drop-down list of the options of a feature.
class UIComboBoxMolecule : public UIComboListBaseMolecule
{
public:
    UIComboBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIComboBoxMolecule() override;

    void CreateControls(UIPageWindow& page) override;
    void LookChanged() override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    UIEntryListControl* List() const override;
    long ReadListRecord(const UIControlData& control, bool raised) override;
    bool HandleNotification(int notification) override;
    void FillTogether(const std::function<void()>& fill) override;

private:
    std::unique_ptr<UIComboBoxControl> m_combo;
    bool m_choiceCancelled = false; ///< the list is about to close without a choice
};
