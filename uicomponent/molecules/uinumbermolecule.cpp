#include "uinumbermolecule.h"

#include <algorithm>

#include "featureservices.h"
#include "integerfeatureref.h"
#include "uicontroldata.h"
#include "uimoleculedata.h"
#include "uitextruler.h"

namespace {

constexpr long kSwitchDrop = 2; // dialog units; of a check box of one line beside a field

} // namespace

UINumberMolecule::UINumberMolecule(const UIMoleculeData& data, const UIMoleculeSite& site,
                                   long switchGap)
    : UIFeatureMolecule(data, site), m_switch(GetSite()), m_switchGap(switchGap)
{
}

UINumberMolecule::~UINumberMolecule() = default;

void UINumberMolecule::InitializeFromDescription()
{
    for (const auto& control : GetData().getControls()) {
        const auto feature = InFeatureList(FeatureIdWithContext{FeatureId(control->getFeature())});
        if (TakeControl(*control))
            SetBoundFeature(feature);
        else if (control->getKind() == UIControlKind::Check)
            m_switch.Set(feature, LoadText(control->getLabel()));
        else if (control->getKind() == UIControlKind::Text)
            m_label.Set(LoadText(control->getLabel()), GetLabelWidth());
    }
    m_switchWidth = GetLabelWidth();
    m_switch.SetMoleculeFeature(GetBoundFeature());
    if (m_switch.HasOwnFeature())
        AddFurtherFeature(m_switch.GetFeature());
    UpdateMinimumHeight();
}

long UINumberMolecule::GetBesideWidth() const
{
    return IsSwitchBeside() ? m_switchWidth : m_label.GetBesideWidth();
}

long UINumberMolecule::HeightAbove() const
{
    const bool ownLine = m_switch.Exists() && !IsSwitchBeside();
    return m_label.GetHeightAbove() + (ownLine ? m_switch.GetHeight() + m_switchGap : 0);
}

long UINumberMolecule::GetNumberTop() const
{
    return GetPosition().y + GetMinimumHeight() - GetNumberHeight();
}

void UINumberMolecule::UpdateMinimumHeight()
{
    const long beside = IsSwitchBeside() ? m_switch.GetHeight() : 0;
    SetMinimumExtent({0, std::max(beside, HeightAbove() + GetNumberHeight())});
}

void UINumberMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_label.Fit(ruler, width - kInfoLane);
    if (m_switchWidth && ruler.GetFit().labelWidth)
        m_switchWidth = ruler.GetFit().labelWidth;
    m_switch.Fit(ruler, IsSwitchBeside() ? m_switchWidth : width - kInfoLane);
    UpdateMinimumHeight();
}

long UINumberMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    return m_label.IsEmpty() ? m_switch.GetWantedWidth(ruler) : m_label.GetWantedWidth(ruler);
}

const CXString& UINumberMolecule::GetName() const
{
    return m_label.IsEmpty() ? m_switch.GetText() : m_label.GetText();
}

void UINumberMolecule::CreateLabelAndSwitch(UIPageWindow& page)
{
    const POINT place = GetPosition();
    m_switch.Create(page, {place.x, place.y + (IsSwitchBeside() ? kSwitchDrop : 0)},
                    IsSwitchBeside() ? m_switchWidth : GetContentWidth());
    m_label.Create(page, GetSite().services, {place.x, GetNumberTop() - m_label.GetHeightAbove()},
                   GetContentWidth());
}

void UINumberMolecule::MoveControls(POINT delta)
{
    m_label.Move(delta);
    m_switch.Move(delta);
}

std::optional<std::int64_t> UINumberMolecule::ReadNumber() const
{
    int value = 0;
    const auto feature = GetSite()
                             .featureServices.GetListOfFeaturesFor(GetBoundFeature())
                             .GetIntegerFeature(GetBoundFeature());
    if (!feature.GetValue(value, FeatureRef::kDoNotAssertIfUnsupported))
        return std::nullopt;
    return value;
}

void UINumberMolecule::LoadValue()
{
    m_switch.Load();
    ShowNumber(m_cleared ? std::nullopt : ReadNumber());
    EnableNumber(IsEnabled() && m_switch.IsOn());
}

void UINumberMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    m_cleared = !enabled && state.IsCleared();
    m_label.Enable(enabled);
    m_switch.ShowState(enabled, IsForceDisabled());
    RenewRules();
    LoadValue();
}

void UINumberMolecule::CompleteState(const CapabilitiesNode& capabilities,
                                     InterpretedState& state) const
{
    UIFeatureMolecule::CompleteState(capabilities, state);
    m_switch.AddReason(state);
}

bool UINumberMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (!m_switch.HandleMessage(message))
        return ProcessCommonMessage(message);
    LoadValue();
    return true;
}

bool UINumberMolecule::Focus()
{
    return UIFeatureMolecule::Focus() || m_switch.Focus();
}

void UINumberMolecule::Show(bool shown)
{
    UIFeatureMolecule::Show(shown);
    m_label.Show(shown);
    m_switch.Show(shown);
}

CXString UINumberMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UINumberMolecule:UIFeatureMolecule:UIMolecule");
}
