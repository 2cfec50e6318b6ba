#pragma once

#include <memory>

#include "uicombolistbasemolecule.h"

class UIListBoxControl;

/// A labelled open list of the options of a feature, for a choice that is the subject of its page.
class UIPickOneMolecule : public UIComboListBaseMolecule
{
public:
    UIPickOneMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIPickOneMolecule() override;

    void CreateControls(UIPageWindow& page) override;
    void LookChanged() override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    UIEntryListControl* List() const override;
    long ReadListRecord(const UIControlData& control, bool raised) override;
    bool HandleNotification(int notification) override;
    void FillTogether(const std::function<void()>& fill) override;

private:
    std::unique_ptr<UIListBoxControl> m_list;
    long m_boxHeight = 0; ///< dialog units
};
