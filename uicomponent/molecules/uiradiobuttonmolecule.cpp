#include "uiradiobuttonmolecule.h"

#include "optioncapability.h"
#include "uimoleculedata.h"
#include "uiradiocontroldata.h"
#include "windowtext.h"

UIRadioButtonMolecule::UIRadioButtonMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIRadioBaseMolecule(data, site)
{
}

void UIRadioButtonMolecule::AddChoices(const OptionCapability& capability)
{
    for (const auto& control : GetData().getControls()) {
        const auto* radio = dynamic_cast<const UIRadioControlData*>(control.get());
        if (!radio)
            continue;
        const ValueId value(radio->getValue());
        // A feature that cannot be read keeps its buttons: a fault in a package is to be seen.
        if (capability.GetNumberOfValues() > 0 && !capability.ValueIsSupported(value))
            continue;
        CXString text = LoadText(radio->getLabel());
        for (std::size_t index = 0; text.IsEmpty() && index < capability.GetNumberOfValues();
             ++index) {
            const OptionWithState& option = capability.GetOptionWithState(index);
            if (option.GetValueId() == value)
                text = o7::withMarkedAmpersands(option.GetOptionDisplayString());
        }
        AddChoice(value, text);
    }
}

CXString UIRadioButtonMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIRadioButtonMolecule:") +
           UIRadioBaseMolecule::GetObserverClassNameHeirarchy();
}
