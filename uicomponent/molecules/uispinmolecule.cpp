#include "uispinmolecule.h"

#include <algorithm>

#include "featureservices.h"
#include "integerfeatureref.h"
#include "numberranges.h"
#include "uidump.h"
#include "uimoleculedump.h"
#include "uiservices.h"
#include "uispincontroldata.h"
#include "uitextruler.h"
#include "uivaluewriter.h"

namespace {

constexpr long kSwitchGap = 3; // dialog units; between the check box and the field under it

} // namespace

UISpinMolecule::UISpinMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UINumberMolecule(data, site, kSwitchGap)
{
    m_field.SetWriter([this](std::int64_t value) {
        return WriteAndReadBack([=, this] { return WriteNumber(value); });
    });
}

UISpinMolecule::~UISpinMolecule() = default;

bool UISpinMolecule::TakeControl(const UIControlData& control)
{
    if (control.getKind() != UIControlKind::Spin &&
        control.getKind() != UIControlKind::DimensionSpin)
        return false;
    m_spinData = static_cast<const UISpinControlData*>(&control);
    return true;
}

void UISpinMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    UINumberMolecule::FitTexts(ruler, width);
    m_field.SetUnitWidth(
        std::max(ruler.WidthOf(GetUnitText(true)), ruler.WidthOf(GetUnitText(false))));
}

CXString UISpinMolecule::GetUnitText(bool metric) const
{
    return m_spinData ? LoadText(m_spinData->getUnitLabel(metric)) : CXString();
}

void UISpinMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    CreateLabelAndSwitch(page);
    m_field.SetRules([this] { return MakeRules(); });
    const long beside = GetBesideWidth();
    m_field.Create(
        page,
        {GetSite(), GetToolTips(), GetBoundFeature(), GetName(), [this] { return GetInfoText(); }},
        {GetPosition().x + beside, GetNumberTop()}, GetContentWidth() - beside, true);
}

void UISpinMolecule::MoveControls(POINT delta)
{
    UINumberMolecule::MoveControls(delta);
    m_field.Move(delta);
}

UINumberRules UISpinMolecule::MakeRules()
{
    const auto feature = GetSite()
                             .featureServices.GetListOfFeaturesFor(GetBoundFeature())
                             .GetIntegerFeature(GetBoundFeature());
    UINumberRules rules = o7::wholeNumberRules(*feature.GetRangeCapabilities(), GetSite().services);
    if (m_spinData) {
        rules.increment = m_spinData->getIncrement(true);
        rules.unitText = LoadText(m_spinData->getUnitLabel(true));
    }
    return rules;
}

void UISpinMolecule::RenewRules()
{
    if (m_field.GetHwnd())
        m_field.RenewRules();
}

bool UISpinMolecule::WriteNumber(std::int64_t value)
{
    return GetSite().valueWriter.SetInteger(GetBoundFeature(), static_cast<int>(value));
}

void UISpinMolecule::ShowNumber(std::optional<std::int64_t> value)
{
    m_field.ShowValue(value);
}

void UISpinMolecule::EnableNumber(bool enabled)
{
    m_field.Enable(enabled);
}

bool UISpinMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    return m_field.HandleMessage(message) || UINumberMolecule::HandleMessage(message);
}

void UISpinMolecule::CollectWantedMessages(UIMessageMask& mask) const
{
    UINumberMolecule::CollectWantedMessages(mask);
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

void UISpinMolecule::Show(bool shown)
{
    UINumberMolecule::Show(shown);
    m_field.Show(shown);
}

HWND UISpinMolecule::InfoAnchor() const
{
    return m_field.GetHwnd();
}

void UISpinMolecule::DumpControls() const
{
    DumpSwitch();
    o7::dumpControl(L"spin", GetName(), m_field.GetText(), StateText(), GetInfoText());
    const UIDump::Level inner;
    m_field.DumpRange();
}

CXString UISpinMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UISpinMolecule:UINumberMolecule:UIFeatureMolecule:UIMolecule");
}
