#include "uipickoneradiomolecule.h"

#include <algorithm>

#include "optioncapability.h"
#include "uiradiobuttoncontrol.h"
#include "uitooltips.h"
#include "windowtext.h"

UIPickOneRadioMolecule::UIPickOneRadioMolecule(const UIMoleculeData& data,
                                               const UIMoleculeSite& site)
    : UIRadioBaseMolecule(data, site)
{
}

void UIPickOneRadioMolecule::AddChoices(const OptionCapability& capability)
{
    for (const Option& option : ReadOptions(capability))
        if (!IsByName(option.value))
            AddChoice(option.value, o7::withMarkedAmpersands(option.text));
    m_hasSpare = capability.SupportsUserDefinedValues();
    if (m_hasSpare)
        AddChoice(ValueId(FeatureId(), CXString()), CXString()); // equal to no value
}

void UIPickOneRadioMolecule::MatchChoices()
{
    if (!m_hasSpare)
        return;
    const auto& options = GetOptions();
    // The present one, or that which was there before.
    const auto named = std::find_if(options.begin(), options.end(), [this](const Option& option) {
        return IsByName(option.value) && IsPresent(option);
    });
    Choice& spare = GetChoices().back();
    if (named == options.end() || named->value == spare.value)
        return;
    spare.value = named->value;
    spare.text = o7::withMarkedAmpersands(named->text);
    ShowText(spare);
    // Its length was not known when the texts were fitted.
    if (GetToolTips())
        GetToolTips()->setTip(spare.button->getHwnd(), named->text);
}

CXString UIPickOneRadioMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIPickOneRadioMolecule:") +
           UIRadioBaseMolecule::GetObserverClassNameHeirarchy();
}
