#pragma once

#include "uiradiobasemolecule.h"

/// One radio button for each option that the product has, in the order of the capability and with
/// the model's texts. A feature with values that exist only by name has one button more, for such
/// a value once it is chosen.
class UIPickOneRadioMolecule : public UIRadioBaseMolecule
{
public:
    UIPickOneRadioMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);

    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void AddChoices(const OptionCapability& capability) override;
    void MatchChoices() override;

private:
    bool m_hasSpare = false; ///< the last button
};
