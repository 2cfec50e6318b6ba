#include "uioptionmolecule.h"

#include <algorithm>

#include "capabilitiesnode.h"
#include "featureservices.h"
#include "optioncapability.h"
#include "optionfeatureref.h"
#include "transactionref.h"
#include "uidump.h"
#include "uimoleculedump.h"
#include "uivaluewriter.h"

UIOptionMolecule::~UIOptionMolecule() = default;

CXString UIOptionMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIOptionMolecule:UIFeatureMolecule:UIMolecule");
}

bool UIOptionMolecule::IsByName(const ValueId& value)
{
    return value.GetValueEnum() == DataModelIds::kValueByName ||
           value.GetValueEnum() == DataModelIds::kValueFirstUserText;
}

ValueId UIOptionMolecule::ReadValue() const
{
    ValueId value;
    const auto feature = GetSite().featureServices.GetOptionFeatureRef(GetBoundFeature());
    return feature.GetValue(value, FeatureRef::kDoNotAssertIfUnsupported) ? value : ValueId();
}

bool UIOptionMolecule::Write(const ValueId& value) const
{
    UIValueWriter& writer = GetSite().valueWriter;
    return IsByName(value) ? writer.SetOptionByName(GetBoundFeature(), value.GetValueName())
                           : writer.SetOption(GetBoundFeature(), value.GetValueEnum());
}

std::unique_ptr<OptionCapability> UIOptionMolecule::ReadCapability() const
{
    return GetSite().featureServices.GetOptionFeatureRef(GetBoundFeature()).GetOptionCapabilities();
}

std::vector<UIOptionMolecule::Option>
UIOptionMolecule::ReadOptions(const OptionCapability& capability) const
{
    std::vector<Option> options;
    options.reserve(capability.GetNumberOfValues() + 1);
    for (std::size_t index = 0; index < capability.GetNumberOfValues(); ++index) {
        const OptionWithState& option = capability.GetOptionWithState(index);
        const InterpretedState& state =
            option.GetValueId().GetValueEnum() == DataModelIds::kValueUnspecified
                ? capability.GetUnspecifiedInterpretedState()
                : option.GetInterpretedState();
        const CXString& reason = state.GetReason();
        options.push_back({option.GetValueId(), option.GetOptionDisplayString(),
                           reason.IsEmpty() ? state.GetCbrBtnMsg() : reason,
                           state.IsDisabled() || state.IsCleared(), state.IsHidden(),
                           state.HasCbrBtnMsg()});
    }
    if (capability.SupportsUserDefinedValues())
        KeepNamedOptions(capability, options);
    return options;
}

// The model need not list what a person has named, and stops doing so once it is not the present
// value any more.
void UIOptionMolecule::KeepNamedOptions(const OptionCapability& capability,
                                        std::vector<Option>& options) const
{
    const auto keep = [&](const ValueId& value, const CXString& text) {
        if (IsByName(value) && !value.GetValueName().IsEmpty() &&
            !capability.ValueIsSupported(value))
            options.push_back({value, text, CXString()});
    };
    const ValueId present = ReadValue();
    keep(present, present.GetDisplayString());
    for (const Option& known : m_options)
        if (known.value != present)
            keep(known.value, known.text);
}

void UIOptionMolecule::CompleteState(const CapabilitiesNode& capabilities,
                                     InterpretedState& state) const
{
    const auto* capability = dynamic_cast<const OptionCapability*>(&capabilities);
    if (!capability || state.IsDisabled() || state.IsHidden())
        return;
    // A model that speaks for its options itself need not be repeated.
    const bool isTold = state.HasInfoBtnMsg();
    for (const Option& option : ReadOptions(*capability)) {
        if (option.value.GetValueEnum() == DataModelIds::kValueUnspecified)
            continue; // goes by the feature, which has its own word
        if (option.hidden || (option.unavailable && !isTold))
            state.AddInfo(option.reason);
        if (option.conflict && !state.HasCbrBtnMsg() && option.value == ReadValue())
            state.AddConflict(option.reason);
    }
}

int UIOptionMolecule::FindOption(const ValueId& value) const
{
    const auto found = std::find_if(m_options.begin(), m_options.end(),
                                    [&](const Option& option) { return option.value == value; });
    return found == m_options.end() ? -1 : static_cast<int>(found - m_options.begin());
}

void UIOptionMolecule::ShowValue()
{
    m_value = ReadValue();
    if (FindOption(m_value) < 0 && IsByName(m_value))
        m_options = ReadOptions(*ReadCapability());
    ShowOptions();
    ShowChoice(m_cleared ? -1 : FindOption(m_value));
    EnableControls(IsEnabled());
}

void UIOptionMolecule::LoadValue()
{
    // Without options it waits for the state, which reads them: reading them twice costs.
    if (HasControls() && !m_options.empty())
        ShowValue();
}

void UIOptionMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    if (!HasControls())
        return;
    m_cleared = !enabled && state.IsCleared();
    m_options = ReadOptions(*ReadCapability());
    ShowValue();
}

void UIOptionMolecule::Choose(int option)
{
    if (option < 0 || option >= static_cast<int>(m_options.size()))
        return;
    // A copy: the options may be read anew while the model tells of the write.
    const Option chosen = GetOption(option);
    const auto transaction = GetSite().featureServices.OpenTransaction();
    if (!chosen.unavailable && chosen.value.GetValueEnum() != DataModelIds::kNoValue)
        Write(chosen.value);
    ShowValue();
    if (transaction)
        transaction->Close(true);
}

CXString UIOptionMolecule::ShownText() const
{
    const int shown = m_cleared ? -1 : FindOption(m_value);
    return shown < 0 ? CXString() : GetOption(shown).text;
}

void UIOptionMolecule::DumpOptions() const
{
    const UIDump::Level inner;
    for (const Option& option : m_options)
        DumpOption(option, option.text);
}

void UIOptionMolecule::DumpOption(const Option& option, const CXString& text)
{
    const wchar_t* const state = option.hidden        ? L"hidden"
                                 : option.unavailable ? L"disabled"
                                 : option.conflict    ? L"conflict"
                                                      : L"";
    o7::dumpOption(text, CXString(state), option.reason);
}
