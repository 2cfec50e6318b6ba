#include "uiradiobuttonmolecule.h"

#include "optioncapability.h"
#include "uimoleculedata.h"
#include "uiradiocontroldata.h"
#include "uiradioimagecontroldata.h"
#include "uiradiopushcontroldata.h"
#include "windowtext.h"

namespace {

/// The model's own text for a value, ready to be shown.
CXString textOf(const ValueId& value, const OptionCapability& capability)
{
    for (std::size_t index = 0; index < capability.GetNumberOfValues(); ++index) {
        const OptionWithState& option = capability.GetOptionWithState(index);
        if (option.GetValueId() == value)
            return o7::withMarkedAmpersands(option.GetOptionDisplayString());
    }
    return value.GetDisplayString();
}

} // namespace

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
        const CXString label = LoadText(radio->getLabel());
        Choice& choice = AddChoice(value, label.IsEmpty() ? textOf(value, capability) : label);
        if (const auto* image = dynamic_cast<const UIRadioImageControlData*>(radio)) {
            choice.picture = static_cast<int>(image->getImage(false));
            choice.checkedPicture = static_cast<int>(image->getImage(true));
        } else if (const auto* push = dynamic_cast<const UIRadioPushControlData*>(radio)) {
            choice.picture = static_cast<int>(push->getImage());
        }
    }
}

CXString UIRadioButtonMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIRadioButtonMolecule:") +
           UIRadioBaseMolecule::GetObserverClassNameHeirarchy();
}
