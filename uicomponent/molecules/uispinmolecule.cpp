#include "uispinmolecule.h"

#include <algorithm>

#include "featureservices.h"
#include "integerfeatureref.h"
#include "numberranges.h"
#include "transactionref.h"
#include "uicheckcontroldata.h"
#include "uidump.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uiservices.h"
#include "uispincontroldata.h"
#include "uitextruler.h"
#include "uivaluewriter.h"

namespace {

constexpr long kSwitchGap = 3;  // dialog units; between the check box and the field under it
constexpr long kSwitchDrop = 2; // of a check box of one line beside a field

} // namespace

UISpinMolecule::UISpinMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIFeatureMolecule(data, site), m_switch(GetSite())
{
    m_field.SetWriter([this](std::int64_t value) { return WriteAndReadBack(value); });
}

UISpinMolecule::~UISpinMolecule() = default;

void UISpinMolecule::InitializeFromDescription()
{
    for (const auto& control : GetData().getControls()) {
        const auto feature = InFeatureList(FeatureIdWithContext{FeatureId(control->getFeature())});
        switch (control->getKind()) {
        case UIControlKind::Spin:
        case UIControlKind::DimensionSpin:
            m_spinData = static_cast<const UISpinControlData*>(control.get());
            SetBoundFeature(feature);
            break;
        case UIControlKind::Check:
            m_switch.Set(feature, LoadText(control->getLabel()));
            break;
        case UIControlKind::Text:
            m_label.Set(LoadText(control->getLabel()), GetLabelWidth());
            break;
        default:
            break;
        }
    }
    m_switchWidth = GetLabelWidth();
    m_switch.SetMoleculeFeature(GetBoundFeature());
    if (m_switch.HasOwnFeature())
        AddFurtherFeature(m_switch.GetFeature());
    UpdateMinimumHeight();
}

// The check box takes the place of a label; beside a label it has a line of its own.
long UISpinMolecule::BesideWidth() const
{
    return IsSwitchBeside() ? m_switchWidth : m_label.GetBesideWidth();
}

long UISpinMolecule::HeightAbove() const
{
    const bool ownLine = m_switch.Exists() && !IsSwitchBeside();
    return m_label.GetHeightAbove() + (ownLine ? m_switch.GetHeight() + kSwitchGap : 0);
}

void UISpinMolecule::UpdateMinimumHeight()
{
    const long beside = IsSwitchBeside() ? m_switch.GetHeight() : 0;
    SetMinimumExtent({0, std::max(beside, HeightAbove() + UINumberField::kHeight)});
}

void UISpinMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_label.Fit(ruler, width - kInfoLane);
    if (m_switchWidth && ruler.GetFit().labelWidth)
        m_switchWidth = ruler.GetFit().labelWidth;
    m_switch.Fit(ruler, IsSwitchBeside() ? m_switchWidth : width - kInfoLane);
    m_field.SetUnitWidth(
        std::max(ruler.WidthOf(GetUnitText(true)), ruler.WidthOf(GetUnitText(false))));
    UpdateMinimumHeight();
}

CXString UISpinMolecule::GetUnitText(bool metric) const
{
    return m_spinData ? LoadText(m_spinData->getUnitLabel(metric)) : CXString();
}

long UISpinMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    return m_label.IsEmpty() ? m_switch.GetWantedWidth(ruler) : m_label.GetWantedWidth(ruler);
}

void UISpinMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const POINT place = GetPosition();
    const long beside = BesideWidth();
    const long top = place.y + GetMinimumHeight() - UINumberField::kHeight;
    m_switch.Create(page, {place.x, place.y + (IsSwitchBeside() ? kSwitchDrop : 0)},
                    IsSwitchBeside() ? beside : GetContentWidth());
    m_label.Create(page, GetSite().services, {place.x, top - m_label.GetHeightAbove()},
                   GetContentWidth());
    m_field.SetRules(MakeRules());
    const CXString& name = m_label.IsEmpty() ? m_switch.GetText() : m_label.GetText();
    m_field.Create(page, {GetSite(), GetToolTips(), GetBoundFeature(), name},
                   {place.x + beside, top}, GetContentWidth() - beside, true);
}

void UISpinMolecule::SetPosition(POINT position)
{
    const POINT delta{position.x - GetPosition().x, position.y - GetPosition().y};
    UIFeatureMolecule::SetPosition(position);
    m_label.Move(delta);
    m_switch.Move(delta);
    m_field.Move(delta);
}

UINumberRules UISpinMolecule::MakeRules()
{
    UINumberRules rules;
    rules.decimalSeparator = GetSite().services.getRegionalSettings().decimalSeparator;
    const auto feature = GetSite()
                             .featureServices.GetListOfFeaturesFor(GetBoundFeature())
                             .GetIntegerFeature(GetBoundFeature());
    rules.ranges = o7::numberRanges(*feature.GetRangeCapabilities());
    if (m_spinData) {
        rules.increment = m_spinData->getIncrement(true);
        rules.unitText = LoadText(m_spinData->getUnitLabel(true));
    }
    return rules;
}

void UISpinMolecule::RenewRules()
{
    m_field.SetRules(MakeRules());
}

std::optional<std::int64_t> UISpinMolecule::ReadNumber() const
{
    int value = 0;
    const auto feature = GetSite()
                             .featureServices.GetListOfFeaturesFor(GetBoundFeature())
                             .GetIntegerFeature(GetBoundFeature());
    if (!feature.GetValue(value, FeatureRef::kDoNotAssertIfUnsupported))
        return std::nullopt;
    return value;
}

bool UISpinMolecule::WriteNumber(std::int64_t value)
{
    return GetSite().valueWriter.SetInteger(GetBoundFeature(), static_cast<int>(value));
}

bool UISpinMolecule::WriteAndReadBack(std::int64_t value)
{
    const auto transaction = GetSite().featureServices.OpenTransaction();
    const bool taken = WriteNumber(value);
    if (taken)
        LoadValue();
    transaction->Close(true);
    return taken;
}

void UISpinMolecule::LoadValue()
{
    m_switch.Load();
    m_field.ShowValue(m_cleared ? std::nullopt : ReadNumber());
    m_field.Enable(IsEnabled() && m_switch.IsOn());
}

void UISpinMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    m_cleared = !enabled && state.IsCleared();
    m_label.Enable(enabled);
    m_switch.Enable(enabled, IsForceDisabled());
    LoadValue();
}

void UISpinMolecule::CompleteState(const CapabilitiesNode& capabilities,
                                   InterpretedState& state) const
{
    UIFeatureMolecule::CompleteState(capabilities, state);
    m_switch.AddReason(state);
}

bool UISpinMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (m_switch.HandleMessage(message)) {
        LoadValue();
        return true;
    }
    return m_field.HandleMessage(message) || ProcessCommonMessage(message);
}

void UISpinMolecule::CollectWantedMessages(UIMessageMask& mask) const
{
    UIFeatureMolecule::CollectWantedMessages(mask);
    UITypedField::CollectWantedMessages(mask);
}

bool UISpinMolecule::Validate()
{
    return m_field.Refuse();
}

bool UISpinMolecule::HasPendingInput() const
{
    return m_field.IsPending();
}

bool UISpinMolecule::Focus()
{
    return UIFeatureMolecule::Focus() || m_switch.Focus();
}

void UISpinMolecule::Show(bool shown)
{
    UIFeatureMolecule::Show(shown);
    m_label.Show(shown);
    m_switch.Show(shown);
    m_field.Show(shown);
}

HWND UISpinMolecule::InfoAnchor() const
{
    return m_field.GetHwnd();
}

void UISpinMolecule::DumpControls() const
{
    m_switch.Dump();
    o7::dumpControl(L"spin", m_label.IsEmpty() ? m_switch.GetText() : m_label.GetText(),
                    m_field.GetText(), StateText(), GetInfoText());
    const UIDump::Level inner;
    m_field.DumpRange();
}

CXString UISpinMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UISpinMolecule:UIFeatureMolecule:UIMolecule");
}
