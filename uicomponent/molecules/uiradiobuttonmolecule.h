#pragma once

#include "uiradiobasemolecule.h"

/// Radio buttons for the values that the control records name: one button for each record, in their
/// order, with the record's label, or the model's own text without one. A value that the product
/// does not have gets no button.
class UIRadioButtonMolecule : public UIRadioBaseMolecule
{
public:
    UIRadioButtonMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);

    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void AddChoices(const OptionCapability& capability) override;
};
