#include "uicombolistbasemolecule.h"

#include <algorithm>

#include "uicontroldata.h"
#include "uientrylistcontrol.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "windowtext.h"

UIComboListBaseMolecule::~UIComboListBaseMolecule() = default;

CXString UIComboListBaseMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIComboListBaseMolecule:UIOptionMolecule:UIFeatureMolecule:UIMolecule");
}

void UIComboListBaseMolecule::InitializeFromDescription()
{
    const auto& controls = GetData().getControls();
    const bool raised = GetData().hasRaisedHeight() ||
                        std::any_of(controls.begin(), controls.end(), [](const auto& control) {
                            return control->getKind() == UIControlKind::BitmapButton;
                        });
    for (const auto& control : controls) {
        switch (control->getKind()) {
        case UIControlKind::Text:
            m_label.Set(LoadText(control->getLabel()), GetLabelWidth());
            break;
        case UIControlKind::Combo:
        case UIControlKind::List:
            SetBoundFeature(FeatureIdWithContext(FeatureId(control->getFeature())));
            m_listHeight = ReadListRecord(*control, raised);
            break;
        default:
            break;
        }
    }
    UpdateMinimumHeight();
}

void UIComboListBaseMolecule::UpdateMinimumHeight()
{
    SetMinimumExtent({0, m_listHeight + m_label.GetHeightAbove()});
}

void UIComboListBaseMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_label.Fit(ruler, width - kInfoLane);
    UpdateMinimumHeight();
}

long UIComboListBaseMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    return m_label.GetWantedWidth(ruler);
}

RECT UIComboListBaseMolecule::CreateLabel(UIPageWindow& page, long height)
{
    const POINT place = GetPosition();
    m_label.Create(page, GetSite().services, place, GetContentWidth());
    const long bottom = place.y + GetMinimumHeight();
    return {place.x + m_label.GetBesideWidth(), bottom - height, place.x + GetContentWidth(),
            bottom};
}

void UIComboListBaseMolecule::PrepareList()
{
    List()->setUnavailableReasons(GetToolTips(), [this](int entry) { return ReasonOf(entry); });
    // The system's own name for a list is its present text.
    List()->setAccessibleName(o7::spokenName(m_label.GetText()));
}

bool UIComboListBaseMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    UIEntryListControl* const list = List();
    if (!list)
        return false;
    if (message.message == WM_COMMAND && reinterpret_cast<HWND>(message.lParam) == list->getHwnd())
        return HandleNotification(HIWORD(message.wParam));
    return list->handleMessage(message) || ProcessCommonMessage(message);
}

void UIComboListBaseMolecule::MoveControls(POINT delta)
{
    m_label.Move(delta);
    if (List())
        List()->move(delta, false);
}

/// The options that have an entry now.
std::vector<int> UIComboListBaseMolecule::WantedOptions() const
{
    std::vector<int> wanted;
    const auto& options = GetOptions();
    wanted.reserve(options.size());
    for (int index = 0; index < static_cast<int>(options.size()); ++index) {
        const Option& option = GetOption(index);
        const bool removed =
            option.hidden || (option.unavailable && m_disabledOptions == UIDisabledOptions::Remove);
        if (!removed || IsPresent(option))
            wanted.push_back(index);
    }
    return wanted;
}

bool UIComboListBaseMolecule::HasEntriesFor(const std::vector<int>& options) const
{
    return std::equal(
        options.begin(), options.end(), m_entries.begin(), m_entries.end(),
        [this](int option, const Entry& entry) { return GetOption(option).value == entry.value; });
}

void UIComboListBaseMolecule::FillList(const std::vector<int>& options)
{
    UIEntryListControl& list = *List();
    FillTogether([&] {
        if (!m_entries.empty())
            list.removeAllItems();
        m_entries.clear();
        m_shownEntry = -1;
        for (const int index : options) {
            const Option& option = GetOption(index);
            m_entries.push_back({{option.value.GetValueEnum(), option.unavailable || option.hidden},
                                 option.value,
                                 index});
            list.setItemData(list.addItem(option.text), &m_entries.back().record);
        }
    });
}

void UIComboListBaseMolecule::MarkEntries(const std::vector<int>& options)
{
    for (std::size_t entry = 0; entry < options.size(); ++entry) {
        const Option& option = GetOption(options[entry]);
        const bool unavailable = option.unavailable || option.hidden;
        m_entries[entry].option = options[entry];
        if (m_entries[entry].record.unavailable != unavailable)
            List()->setItemUnavailable(unavailable, static_cast<int>(entry));
    }
}

void UIComboListBaseMolecule::ShowOptions()
{
    const std::vector<int> wanted = WantedOptions();
    if (HasEntriesFor(wanted))
        MarkEntries(wanted);
    else
        FillList(wanted);
}

void UIComboListBaseMolecule::ShowChoice(int option)
{
    int shown = -1;
    for (std::size_t entry = 0; entry < m_entries.size() && shown < 0; ++entry)
        if (m_entries[entry].option == option)
            shown = static_cast<int>(entry);
    if (shown == m_shownEntry)
        return;
    m_shownEntry = shown;
    List()->setSelection(shown);
}

void UIComboListBaseMolecule::EnableControls(bool enabled)
{
    m_label.Enable(enabled);
    List()->setEnable(enabled);
}

void UIComboListBaseMolecule::ChooseEntry(int entry)
{
    if (!List() || entry < 0 || entry >= static_cast<int>(m_entries.size()) ||
        entry == m_shownEntry)
        return;
    m_shownEntry = entry; // what the list shows by now
    Choose(m_entries[static_cast<std::size_t>(entry)].option);
}

void UIComboListBaseMolecule::ShowLastEntry()
{
    if (List())
        List()->setSelection(m_shownEntry);
}

CXString UIComboListBaseMolecule::ReasonOf(int entry) const
{
    const auto index = static_cast<std::size_t>(entry);
    return entry >= 0 && index < m_entries.size() ? GetOption(m_entries[index].option).reason
                                                  : CXString();
}

void UIComboListBaseMolecule::Show(bool shown)
{
    UIOptionMolecule::Show(shown);
    m_label.Show(shown);
    if (List())
        List()->setShow(shown);
}

HWND UIComboListBaseMolecule::InfoAnchor() const
{
    return List() ? List()->getHwnd() : nullptr;
}

void UIComboListBaseMolecule::DumpControls() const
{
    o7::dumpControl(L"list", m_label.GetText(), ShownText(), StateText(), GetInfoText());
    DumpOptions();
}
