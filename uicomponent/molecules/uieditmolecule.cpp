#include "uieditmolecule.h"

#include <algorithm>

#include "featureservices.h"
#include "integerfeatureref.h"
#include "numberranges.h"
#include "stringcapability.h"
#include "stringfeatureref.h"
#include "uidump.h"
#include "uieditcontroldata.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uinumberfield.h"
#include "uitextfield.h"
#include "uitextruler.h"
#include "uivaluewriter.h"

namespace {

// Dialog units.
constexpr long kBoxHeight = 14;
constexpr long kFrame = 6;      // above and below the lines of a box
constexpr long kRaisedDrop = 9; // room for a button above the box

} // namespace

UIEditMolecule::UIEditMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIFeatureMolecule(data, site)
{
}

UIEditMolecule::~UIEditMolecule() = default;

void UIEditMolecule::InitializeFromDescription()
{
    for (const auto& control : GetData().getControls()) {
        if (control->getKind() == UIControlKind::Edit) {
            m_editData = static_cast<const UIEditControlData*>(control.get());
            SetBoundFeature(FeatureIdWithContext{FeatureId(control->getFeature())});
        } else if (control->getKind() == UIControlKind::Text) {
            m_label.Set(LoadText(control->getLabel()), GetLabelWidth());
        }
    }
    UpdateMinimumHeight();
}

long UIEditMolecule::BoxHeight() const
{
    if (!m_editData || !m_editData->isMultiline())
        return kBoxHeight;
    return static_cast<long>(m_editData->getLines()) * UITextRuler::kLineHeight + kFrame;
}

void UIEditMolecule::UpdateMinimumHeight()
{
    const long drop = GetData().hasRaisedHeight() ? kRaisedDrop : 0;
    SetMinimumExtent({0, m_label.GetHeightAbove() + drop + BoxHeight()});
}

void UIEditMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_label.Fit(ruler, width - kInfoLane);
    UpdateMinimumHeight();
}

long UIEditMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    return m_label.GetWantedWidth(ruler);
}

void UIEditMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const POINT place = GetPosition();
    const long beside = m_label.GetBesideWidth();
    const long top = place.y + GetMinimumHeight() - BoxHeight();
    m_label.Create(page, GetSite().services, {place.x, top - m_label.GetHeightAbove()},
                   GetContentWidth());
    const auto feature = GetSite().featureServices.GetFeatureRef(GetBoundFeature());
    const long width = GetContentWidth() - beside;
    if (feature->GetKind() == o7::FeatureKind::Integer)
        CreateNumber(page, {place.x + beside, top}, width);
    else
        CreateText(page, {place.x + beside, top}, width);
}

void UIEditMolecule::CreateNumber(UIPageWindow& page, POINT place, long width)
{
    m_number = std::make_unique<UINumberField>();
    m_field = m_number.get();
    m_number->SetRules([this] {
        const auto feature = GetSite()
                                 .featureServices.GetListOfFeaturesFor(GetBoundFeature())
                                 .GetIntegerFeature(GetBoundFeature());
        return o7::wholeNumberRules(*feature.GetRangeCapabilities(), GetSite().services);
    });
    m_number->SetWriter(
        [this](std::int64_t value) { return WriteNumber(static_cast<int>(value)); });
    m_number->Create(page, FieldSurroundings(), place, width, false);
}

void UIEditMolecule::CreateText(UIPageWindow& page, POINT place, long width)
{
    UITextField::Rules rules;
    long wanted = 0;
    if (m_editData) {
        rules.longest = static_cast<int>(m_editData->getLimit());
        rules.digitsOnly = m_editData->acceptsDigitsOnly();
        rules.password = m_editData->isPassword();
        rules.lines = static_cast<int>(m_editData->getLines());
        wanted = static_cast<long>(m_editData->getWidth());
    }
    const auto feature = GetSite().featureServices.GetFeatureRef(GetBoundFeature());
    const auto capability = feature->GetCapabilities();
    if (const auto* text = dynamic_cast<const StringCapability*>(capability.get()))
        rules.longest = std::min(rules.longest, static_cast<int>(text->GetMaximumLength()));
    m_text = std::make_unique<UITextField>(
        rules, [this](const CXString& text) { return WriteText(text); });
    m_field = m_text.get();
    m_text->Create(page, FieldSurroundings(), place,
                   {wanted ? std::min(wanted, width) : width, BoxHeight()});
}

UITypedField::Surroundings UIEditMolecule::FieldSurroundings() const
{
    return {GetSite(), GetToolTips(), GetBoundFeature(), m_label.GetText(),
            [this] { return GetInfoText(); }};
}

bool UIEditMolecule::WriteNumber(int value)
{
    return WriteAndReadBack(
        [&] { return GetSite().valueWriter.SetInteger(GetBoundFeature(), value); });
}

bool UIEditMolecule::WriteText(const CXString& text)
{
    return WriteAndReadBack(
        [&] { return GetSite().valueWriter.SetString(GetBoundFeature(), text); });
}

void UIEditMolecule::LoadValue()
{
    const auto features = GetSite().featureServices.GetListOfFeaturesFor(GetBoundFeature());
    if (m_number) {
        int value = 0;
        const bool read = !m_cleared && features.GetIntegerFeature(GetBoundFeature())
                                            .GetValue(value, FeatureRef::kDoNotAssertIfUnsupported);
        m_number->ShowValue(read ? std::optional<std::int64_t>(value) : std::nullopt);
    } else if (m_text) {
        CXString value;
        if (!m_cleared)
            features.GetStringFeature(GetBoundFeature())
                .GetValue(value, FeatureRef::kDoNotAssertIfUnsupported);
        m_text->ShowValue(value);
    }
}

void UIEditMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    m_cleared = !enabled && state.IsCleared();
    m_label.Enable(enabled);
    if (m_number)
        m_number->RenewRules();
    LoadValue();
    if (!m_field)
        return;
    // What can only be read can still be selected and copied.
    const auto capabilities =
        GetSite().featureServices.GetFeatureRef(GetBoundFeature())->GetCapabilities();
    const bool readOnly = IsOnlyShown(*capabilities) && !IsForceDisabled() &&
                          !capabilities->GetInterpretedState().IsDisabled();
    m_field->SetReadOnly(readOnly);
    m_field->Enable(enabled || readOnly);
}

bool UIEditMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    return (m_field && m_field->HandleMessage(message)) || ProcessCommonMessage(message);
}

void UIEditMolecule::CollectWantedMessages(UIMessageMask& mask) const
{
    UIFeatureMolecule::CollectWantedMessages(mask);
    UITypedField::CollectWantedMessages(mask);
}

bool UIEditMolecule::Validate()
{
    return !m_field || m_field->Refuse();
}

bool UIEditMolecule::HasPendingInput() const
{
    return m_field && m_field->IsPending();
}

void UIEditMolecule::MoveControls(POINT delta)
{
    m_label.Move(delta);
    if (m_field)
        m_field->Move(delta);
}

void UIEditMolecule::Show(bool shown)
{
    UIFeatureMolecule::Show(shown);
    m_label.Show(shown);
    if (m_field)
        m_field->Show(shown);
}

HWND UIEditMolecule::InfoAnchor() const
{
    return m_field ? m_field->GetHwnd() : nullptr;
}

void UIEditMolecule::DumpControls() const
{
    const bool secret = m_editData && m_editData->isPassword();
    CXString text = m_field ? m_field->GetText() : CXString();
    if (secret && !text.IsEmpty())
        text = CXString(L"\u2022\u2022\u2022\u2022");
    o7::dumpControl(L"edit", m_label.GetText(), text, StateText(), GetInfoText());
    const UIDump::Level inner;
    if (m_number)
        m_number->DumpRange();
}

CXString UIEditMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIEditMolecule:UIFeatureMolecule:UIMolecule");
}
