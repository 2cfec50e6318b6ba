#include "uicombolistbasemolecule.h"

#include "capabilitiesnode.h"
#include "featureref.h"
#include "featureservices.h"
#include "icombolistcontrol.h"
#include "optionfeatureref.h"
#include "transactionref.h"
#include "uidump.h"
#include "uimoleculedump.h"
#include "uivaluewriter.h"

UIComboListBaseMolecule::~UIComboListBaseMolecule() = default;

CXString UIComboListBaseMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIComboListBaseMolecule:UIFeatureMolecule:UIMolecule");
}

int UIComboListBaseMolecule::ReadValue() const
{
    ValueId value;
    const auto feature = GetSite().featureServices.GetOptionFeatureRef(GetBoundFeature());
    if (!feature.GetValue(value, FeatureRef::kDoNotAssertIfUnsupported))
        return DataModelIds::kNoValue;
    return value.GetValueEnum();
}

bool UIComboListBaseMolecule::ReadOptions(std::deque<Entry>& entries) const
{
    const auto feature = GetSite().featureServices.GetOptionFeatureRef(GetBoundFeature());
    const auto options = feature.GetOptionCapabilities();
    if (!options)
        return false;
    for (std::size_t index = 0; index < options->GetNumberOfValues(); ++index) {
        const OptionWithState& option = options->GetOptionWithState(index);
        const auto value = option.GetValueId().GetValueEnum();
        // The entry for "unspecified" goes by the state of the feature, not by one of its own.
        const InterpretedState state = value == DataModelIds::kValueUnspecified
                                           ? options->GetUnspecifiedInterpretedState()
                                           : option.GetInterpretedState();
        if (state.IsHidden())
            continue;
        const bool unavailable = state.IsDisabled() || state.IsCleared();
        entries.push_back({{value, unavailable},
                           option.GetOptionDisplayString(),
                           unavailable ? state.GetReason() : CXString()});
    }
    return true;
}

bool UIComboListBaseMolecule::HasSameEntries(const std::deque<Entry>& entries) const
{
    if (entries.size() != m_entries.size())
        return false;
    for (std::size_t index = 0; index < entries.size(); ++index)
        if (entries[index].record.id != m_entries[index].record.id)
            return false;
    return true;
}

void UIComboListBaseMolecule::FillList(std::deque<Entry> entries)
{
    IComboListControl& list = *List();
    if (!m_entries.empty())
        list.removeAllItems();
    m_entries = std::move(entries);
    m_shownIndex = -1;
    FillTogether([&] {
        for (Entry& entry : m_entries)
            list.setItemData(list.addItem(entry.text), &entry.record);
    });
}

void UIComboListBaseMolecule::MarkUnavailable(const std::deque<Entry>& entries)
{
    for (std::size_t index = 0; index < entries.size(); ++index) {
        m_entries[index].reason = entries[index].reason;
        List()->setItemUnavailable(entries[index].record.unavailable, static_cast<int>(index));
    }
}

void UIComboListBaseMolecule::SelectValue(int value)
{
    int index = -1;
    for (std::size_t entry = 0; entry < m_entries.size() && !m_cleared; ++entry)
        if (m_entries[entry].record.id == value)
            index = static_cast<int>(entry);
    if (index == m_shownIndex)
        return;
    m_shownIndex = index;
    List()->setSelection(index);
}

void UIComboListBaseMolecule::LoadValue()
{
    // An empty list waits for the state, which fills it: reading the options twice costs.
    if (List() && !m_entries.empty())
        SelectValue(ReadValue());
}

void UIComboListBaseMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    if (!List())
        return;
    std::deque<Entry> entries;
    if (ReadOptions(entries)) {
        if (HasSameEntries(entries))
            MarkUnavailable(entries);
        else
            FillList(std::move(entries));
    }
    m_cleared = !enabled && state.IsCleared();
    SelectValue(ReadValue());
    EnableControls(enabled);
}

void UIComboListBaseMolecule::ChooseEntry(int index)
{
    if (!List() || index < 0 || index >= static_cast<int>(m_entries.size()) ||
        index == m_shownIndex)
        return;
    m_shownIndex = index; // what the list shows by now
    const auto value = static_cast<DataModelIds::tagValueEnum>(
        m_entries[static_cast<std::size_t>(index)].record.id);
    const bool available = List()->isItemAvailable(index);
    const auto transaction = GetSite().featureServices.OpenTransaction();
    if (available && value != DataModelIds::kNoValue)
        GetSite().valueWriter.SetOption(GetBoundFeature(), value);
    SelectValue(ReadValue());
    if (transaction)
        transaction->Close(true);
}

CXString UIComboListBaseMolecule::ShownText() const
{
    return m_shownIndex < 0 ? CXString() : m_entries[static_cast<std::size_t>(m_shownIndex)].text;
}

void UIComboListBaseMolecule::ShowChoice()
{
    if (List())
        List()->setSelection(m_shownIndex);
}

CXString UIComboListBaseMolecule::ReasonOf(int index) const
{
    const auto entry = static_cast<std::size_t>(index);
    return index >= 0 && entry < m_entries.size() ? m_entries[entry].reason : CXString();
}

void UIComboListBaseMolecule::DumpOptions() const
{
    const UIDump::Level inner;
    for (const Entry& entry : m_entries)
        o7::dumpOption(entry.text, entry.reason);
}
