#include "uirangeofintegermolecule.h"

#include <algorithm>

#include "featureservices.h"
#include "integerfeatureref.h"
#include "numberranges.h"
#include "rangefeatureref.h"
#include "transactionref.h"
#include "uicheckcontroldata.h"
#include "uidump.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uinumberfield.h"
#include "uispincontroldata.h"
#include "uistringnumbers.h"
#include "uitextruler.h"
#include "uivaluewriter.h"

namespace {

// Dialog units.
constexpr long kIndent = 12; // under the text of the check box
constexpr long kSwitchGap = 3;
constexpr long kLabelGap = 3;
constexpr long kEndGap = 8; // between the two ends
constexpr long kRowGap = 4;
constexpr long kLabelDrop = 3;
constexpr long kLetterWidth = 5; // as long as nobody has measured

} // namespace

/// One end. What is typed in it is valid only together with what stands in the other.
class UIRangeOfIntegerMolecule::EndField : public UINumberField
{
public:
    EndField(UIRangeOfIntegerMolecule& molecule, Which which) : m_molecule(molecule), m_which(which)
    {
        SetWriter([this](std::int64_t value) {
            return m_molecule.WriteEnd(m_which, static_cast<int>(value));
        });
    }

protected:
    Verdict Take(const CXString& text) override
    {
        const auto typed = ValueOf(text);
        const auto other = Other().GetTypedValue();
        if (typed && other && (m_which == kLow ? *typed > *other : *typed < *other)) {
            GiveBack();
            return {.fault = String(O7STR_M_FROM_ABOVE_TO),
                    .correction = GetRules().text(*other),
                    .waits = true};
        }
        return UINumberField::Take(text);
    }

    bool IsSibling(HWND window) const override { return window == Other().GetHwnd(); }

    // What stands in one end waits for the other; it comes to its end when the person has left
    // both.
    void Settle() override
    {
        UINumberField::Settle();
        EndField& other = Other();
        if (other.IsPending() && GetFocus() != other.GetHwnd())
            other.UINumberField::Settle();
    }

private:
    EndField& Other() const { return *m_molecule.m_ends[m_which == kLow ? kHigh : kLow].field; }

    UIRangeOfIntegerMolecule& m_molecule;
    Which m_which;
};

UIRangeOfIntegerMolecule::UIRangeOfIntegerMolecule(const UIMoleculeData& data,
                                                   const UIMoleculeSite& site)
    : UIFeatureMolecule(data, site), m_switch(GetSite())
{
}

UIRangeOfIntegerMolecule::~UIRangeOfIntegerMolecule() = default;

void UIRangeOfIntegerMolecule::InitializeFromDescription()
{
    CXString label;
    for (const auto& control : GetData().getControls()) {
        switch (control->getKind()) {
        case UIControlKind::Check:
            m_switch.Set(InFeatureList(FeatureIdWithContext{FeatureId(control->getFeature())}),
                         LoadText(control->getLabel()));
            break;
        case UIControlKind::Text:
            label = LoadText(control->getLabel());
            break;
        case UIControlKind::Spin:
            AddEnd(static_cast<const UISpinControlData&>(*control), label);
            break;
        default:
            break;
        }
    }
    m_switch.SetMoleculeFeature(GetBoundFeature());
    if (m_switch.HasOwnFeature())
        AddFurtherFeature(m_switch.GetFeature());
    const long above = m_switch.Exists() ? m_switch.GetHeight() + kSwitchGap : 0;
    SetMinimumExtent({0, above + UINumberField::kHeight});
}

void UIRangeOfIntegerMolecule::AddEnd(const UISpinControlData& data, const CXString& label)
{
    if (m_known == m_ends.size())
        return;
    End& end = m_ends[m_known++];
    end.feature = InFeatureList(FeatureIdWithContext{FeatureId(data.getFeature())});
    end.data = &data;
    end.label = label;
    end.labelWidth = kLetterWidth * label.GetLength();
    if (!IsBound())
        SetBoundFeature(end.feature);
    else if (!(end.feature == GetBoundFeature()))
        AddFurtherFeature(end.feature);
}

bool UIRangeOfIntegerMolecule::IsInteger(const End& end) const
{
    return GetSite().featureServices.GetFeatureRef(end.feature)->GetKind() ==
           o7::FeatureKind::Integer;
}

UINumberRules UIRangeOfIntegerMolecule::MakeRules(const End& end) const
{
    const auto features = GetSite().featureServices.GetListOfFeaturesFor(end.feature);
    const auto capability = IsInteger(end)
                                ? features.GetIntegerFeature(end.feature).GetRangeCapabilities()
                                : features.GetRangeFeature(end.feature).GetRangeCapabilities();
    UINumberRules rules = o7::wholeNumberRules(*capability, GetSite().services);
    rules.increment = end.data->getIncrement(true);
    rules.unitText = LoadText(end.data->getUnitLabel(true));
    return rules;
}

void UIRangeOfIntegerMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_switch.Fit(ruler, width - kInfoLane);
    for (End& end : m_ends)
        end.labelWidth = end.label.IsEmpty() ? 0 : ruler.WidthOf(end.label) + kLabelGap;
    Arrange(width - kInfoLane);
}

/// Both ends in one row where they fit, otherwise one below the other.
void UIRangeOfIntegerMolecule::Arrange(long contentWidth)
{
    const long indent = m_switch.Exists() ? kIndent : 0;
    long wanted = indent + kEndGap;
    for (const End& end : m_ends) {
        if (!end.data)
            continue;
        UINumberField field;
        field.SetRules([&, this] { return MakeRules(end); });
        wanted += end.labelWidth + field.GetWantedWidth(true);
    }
    m_twoRows = wanted > contentWidth;
    const long above = m_switch.Exists() ? m_switch.GetHeight() + kSwitchGap : 0;
    const long rows =
        m_twoRows ? 2 * UINumberField::kHeight + kRowGap : long{UINumberField::kHeight};
    SetMinimumExtent({0, above + rows});
}

void UIRangeOfIntegerMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    if (m_known != m_ends.size())
        return; // a description without its two ends has nothing to show
    const POINT place = GetPosition();
    m_switch.Create(page, place, GetContentWidth());
    const long indent = m_switch.Exists() ? kIndent : 0;
    const long width = GetContentWidth() - indent;
    POINT at{place.x + indent,
             place.y + (m_switch.Exists() ? m_switch.GetHeight() + kSwitchGap : 0)};
    if (m_twoRows) {
        const long labels = std::max(m_ends[kLow].labelWidth, m_ends[kHigh].labelWidth);
        m_ends[kLow].labelWidth = m_ends[kHigh].labelWidth = labels;
    }
    for (const Which which : {kLow, kHigh})
        m_ends[which].field = std::make_unique<EndField>(*this, which);
    for (const Which which : {kLow, kHigh}) {
        End& end = m_ends[which];
        end.field->SetRules([&end, this] { return MakeRules(end); });
        const long taken = end.labelWidth + end.field->GetWantedWidth(true) + kEndGap;
        CreateEnd(page, which, at,
                  m_twoRows || which == kHigh ? width - (at.x - place.x - indent)
                                              : taken - kEndGap);
        if (m_twoRows)
            at.y += UINumberField::kHeight + kRowGap;
        else
            at.x += taken;
    }
}

void UIRangeOfIntegerMolecule::CreateEnd(UIPageWindow& page, Which which, POINT place, long width)
{
    End& end = m_ends[which];
    if (!end.label.IsEmpty()) {
        end.labelControl = std::make_unique<UITextControl>(
            page.window, page.takeId(), GetSite().services, page.font,
            POINT{place.x, place.y + kLabelDrop}, SIZE{end.labelWidth, UITextRuler::kLineHeight},
            SS_NOTIFY, true, page.boldFont);
        end.labelControl->setLabelText(end.label);
    }
    end.field->Create(
        page, {GetSite(), GetToolTips(), end.feature, end.label, [this] { return GetInfoText(); }},
        {place.x + end.labelWidth, place.y}, width - end.labelWidth, true);
}

void UIRangeOfIntegerMolecule::MoveControls(POINT delta)
{
    m_switch.Move(delta);
    for (End& end : m_ends) {
        if (end.labelControl)
            end.labelControl->move(delta, false);
        if (end.field)
            end.field->Move(delta);
    }
}

std::optional<int> UIRangeOfIntegerMolecule::ReadEnd(Which which) const
{
    const End& end = m_ends[which];
    const auto features = GetSite().featureServices.GetListOfFeaturesFor(end.feature);
    int ends[2] = {};
    const bool read =
        IsInteger(end)
            ? features.GetIntegerFeature(end.feature)
                  .GetValue(ends[which], FeatureRef::kDoNotAssertIfUnsupported)
            : features.GetRangeFeature(end.feature)
                  .GetValue(ends[kLow], ends[kHigh], FeatureRef::kDoNotAssertIfUnsupported);
    return read ? std::optional(ends[which]) : std::nullopt;
}

// Both ends are written: the other one may have waited for this.
bool UIRangeOfIntegerMolecule::WriteEnd(Which which, int value)
{
    int ends[2] = {};
    for (const Which one : {kLow, kHigh})
        ends[one] = static_cast<int>(
            m_ends[one].field->GetTypedValue().value_or(ReadEnd(one).value_or(value)));
    ends[which] = value;
    UIValueWriter& writer = GetSite().valueWriter;
    const auto transaction = GetSite().featureServices.OpenTransaction();
    bool taken = true;
    for (const Which one : {kLow, kHigh})
        if (IsInteger(m_ends[one]) && ReadEnd(one) != ends[one])
            taken = writer.SetInteger(m_ends[one].feature, ends[one]) && taken;
    if (!IsInteger(m_ends[which]))
        taken = writer.SetRange(m_ends[which].feature, ends[kLow], ends[kHigh]) && taken;
    if (taken)
        LoadValue();
    transaction->Close(taken);
    return taken;
}

void UIRangeOfIntegerMolecule::LoadValue()
{
    m_switch.Load();
    for (const Which which : {kLow, kHigh}) {
        if (!m_ends[which].field)
            continue;
        const auto value = m_cleared ? std::nullopt : ReadEnd(which);
        m_ends[which].field->ShowValue(value ? std::optional<std::int64_t>(*value) : std::nullopt);
    }
    EnableEnds(IsEnabled() && m_switch.IsOn());
}

void UIRangeOfIntegerMolecule::EnableEnds(bool enabled)
{
    for (End& end : m_ends) {
        if (end.labelControl)
            end.labelControl->setEnable(enabled);
        if (end.field)
            end.field->Enable(enabled);
    }
}

void UIRangeOfIntegerMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    m_cleared = !enabled && state.IsCleared();
    m_switch.ShowState(enabled, IsForceDisabled());
    for (const End& end : m_ends)
        if (end.field)
            end.field->RenewRules();
    LoadValue();
}

void UIRangeOfIntegerMolecule::CompleteState(const CapabilitiesNode& capabilities,
                                             InterpretedState& state) const
{
    UIFeatureMolecule::CompleteState(capabilities, state);
    m_switch.AddReason(state);
}

bool UIRangeOfIntegerMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (m_switch.HandleMessage(message)) {
        LoadValue();
        return true;
    }
    for (End& end : m_ends)
        if (end.field && end.field->HandleMessage(message))
            return true;
    return ProcessCommonMessage(message);
}

void UIRangeOfIntegerMolecule::CollectWantedMessages(UIMessageMask& mask) const
{
    UIFeatureMolecule::CollectWantedMessages(mask);
    UITypedField::CollectWantedMessages(mask);
}

bool UIRangeOfIntegerMolecule::Validate()
{
    return std::all_of(m_ends.begin(), m_ends.end(),
                       [](const End& end) { return !end.field || end.field->Refuse(); });
}

bool UIRangeOfIntegerMolecule::HasPendingInput() const
{
    return std::any_of(m_ends.begin(), m_ends.end(),
                       [](const End& end) { return end.field && end.field->IsPending(); });
}

bool UIRangeOfIntegerMolecule::Focus()
{
    return UIFeatureMolecule::Focus() || m_switch.Focus();
}

void UIRangeOfIntegerMolecule::Show(bool shown)
{
    UIFeatureMolecule::Show(shown);
    m_switch.Show(shown);
    for (End& end : m_ends) {
        if (end.labelControl)
            end.labelControl->setShow(shown);
        if (end.field)
            end.field->Show(shown);
    }
}

HWND UIRangeOfIntegerMolecule::InfoAnchor() const
{
    return m_ends[kLow].field ? m_ends[kLow].field->GetHwnd() : nullptr;
}

void UIRangeOfIntegerMolecule::DumpControls() const
{
    m_switch.Dump();
    for (const End& end : m_ends) {
        if (!end.field)
            continue;
        o7::dumpControl(L"spin", end.label, end.field->GetText(), StateText(), GetInfoText());
        const UIDump::Level inner;
        end.field->DumpRange();
    }
}

CXString UIRangeOfIntegerMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIRangeOfIntegerMolecule:UIFeatureMolecule:UIMolecule");
}
