#include "uislidermolecule.h"

#include <commctrl.h>

#include <algorithm>

#include "featureservices.h"
#include "integerfeatureref.h"
#include "numberranges.h"
#include "productstringloader.h"
#include "transactionref.h"
#include "uicheckcontroldata.h"
#include "uidump.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uiservices.h"
#include "uislidercontrol.h"
#include "uislidercontroldata.h"
#include "uistringnumbers.h"
#include "uitextcontrol.h"
#include "uitextruler.h"
#include "uivaluewriter.h"
#include "windowtext.h"

namespace {

// Dialog units.
constexpr long kSliderHeight = 15;
constexpr long kNumberWidth = 22;
constexpr long kNumberDrop = 3;
constexpr long kSwitchGap = 1;
constexpr long kSwitchDrop = 2;

} // namespace

UISliderMolecule::UISliderMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIFeatureMolecule(data, site), m_switch(GetSite())
{
}

UISliderMolecule::~UISliderMolecule() = default;

void UISliderMolecule::InitializeFromDescription()
{
    for (const auto& control : GetData().getControls()) {
        const auto feature = InFeatureList(FeatureIdWithContext{FeatureId(control->getFeature())});
        switch (control->getKind()) {
        case UIControlKind::Slider:
            m_sliderData = static_cast<const UISliderControlData*>(control.get());
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

long UISliderMolecule::BesideWidth() const
{
    return IsSwitchBeside() ? m_switchWidth : m_label.GetBesideWidth();
}

long UISliderMolecule::HeightAbove() const
{
    const bool ownLine = m_switch.Exists() && !IsSwitchBeside();
    return m_label.GetHeightAbove() + (ownLine ? m_switch.GetHeight() + kSwitchGap : 0);
}

long UISliderMolecule::EndsHeight() const
{
    const bool hasEnds =
        m_sliderData && (m_sliderData->getLowLabel() || m_sliderData->getHighLabel());
    return hasEnds ? UITextRuler::kLineHeight : 0;
}

void UISliderMolecule::UpdateMinimumHeight()
{
    SetMinimumExtent({0, HeightAbove() + kSliderHeight + EndsHeight()});
}

void UISliderMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_label.Fit(ruler, width - kInfoLane);
    if (m_switchWidth && ruler.GetFit().labelWidth)
        m_switchWidth = ruler.GetFit().labelWidth;
    m_switch.Fit(ruler, IsSwitchBeside() ? m_switchWidth : width - kInfoLane);
    FitEnds(ruler, width - kInfoLane - BesideWidth() - kNumberWidth);
    UpdateMinimumHeight();
}

void UISliderMolecule::FitEnds(const UITextRuler& ruler, long width)
{
    if (!EndsHeight())
        return;
    const long low = ruler.WidthOf(LoadText(m_sliderData->getLowLabel()));
    const long high = ruler.WidthOf(LoadText(m_sliderData->getHighLabel()));
    m_lowEndWidth = std::clamp(width / 2, std::min(low, width), std::max(low, width - high));
    if (low + high > width)
        ruler.NoteCut();
}

long UISliderMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    return m_label.IsEmpty() ? m_switch.GetWantedWidth(ruler) : m_label.GetWantedWidth(ruler);
}

void UISliderMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const POINT place = GetPosition();
    const long beside = BesideWidth();
    const long top = place.y + GetMinimumHeight() - EndsHeight() - kSliderHeight;
    m_switch.Create(page, {place.x, place.y + (IsSwitchBeside() ? kSwitchDrop : 0)},
                    IsSwitchBeside() ? beside : GetContentWidth());
    m_label.Create(page, GetSite().services, {place.x, top - m_label.GetHeightAbove()},
                   GetContentWidth());
    const POINT sliderPlace{place.x + beside, top};
    const long width = GetContentWidth() - beside - kNumberWidth;
    ReadRules();
    CreateSlider(page, sliderPlace, width);
    CreateEnds(page, {sliderPlace.x, top + kSliderHeight}, width);
}

std::unique_ptr<UITextControl> UISliderMolecule::CreateText(UIPageWindow& page, POINT place,
                                                            long width, DWORD style) const
{
    return std::make_unique<UITextControl>(page.window, page.takeId(), GetSite().services,
                                           page.font, place, SIZE{width, UITextRuler::kLineHeight},
                                           style | SS_NOTIFY | SS_NOPREFIX, true, page.boldFont);
}

void UISliderMolecule::CreateSlider(UIPageWindow& page, POINT place, long width)
{
    const auto ends = m_rules.ranges.empty() ? UINumberRules::Range{0, 100}
                                             : UINumberRules::Range{m_rules.ranges.front().low,
                                                                    m_rules.ranges.back().high};
    m_slider = std::make_unique<UISliderControl>(
        page.window, page.takeId(), GetSite().services, page.font, place,
        SIZE{width, kSliderHeight}, TBS_TOOLTIPS | TBS_DOWNISLEFT, static_cast<int>(ends.low),
        static_cast<int>(ends.high));
    if (m_sliderData) {
        m_slider->setTickFrequency(m_sliderData->getTickFrequency());
        m_slider->setSteps(1, m_sliderData->getPageSize());
    }
    const CXString& name = m_label.IsEmpty() ? m_switch.GetText() : m_label.GetText();
    m_slider->setAccessibleName(o7::spokenName(name));
    m_number = CreateText(page, {place.x + width, place.y + kNumberDrop}, kNumberWidth,
                          GetSite().services.isRightToLeft() ? SS_LEFT : SS_RIGHT);
    m_number->keepUnmirrored();
    SendMessageW(m_slider->getHwnd(), TBM_SETBUDDY, FALSE,
                 reinterpret_cast<LPARAM>(m_number->getHwnd()));
}

void UISliderMolecule::CreateEnds(UIPageWindow& page, POINT place, long width)
{
    if (!EndsHeight())
        return;
    const long lowWidth = m_lowEndWidth ? m_lowEndWidth : width / 2;
    m_lowEnd = CreateText(page, place, lowWidth, SS_LEFT);
    m_lowEnd->setLabelText(LoadText(m_sliderData->getLowLabel()));
    m_highEnd = CreateText(page, {place.x + lowWidth, place.y}, width - lowWidth, SS_RIGHT);
    m_highEnd->setLabelText(LoadText(m_sliderData->getHighLabel()));
}

template <class Do> void UISliderMolecule::ForTexts(Do&& act) const
{
    for (UITextControl* text : {m_number.get(), m_lowEnd.get(), m_highEnd.get()})
        if (text)
            act(*text);
}

void UISliderMolecule::SetPosition(POINT position)
{
    const POINT delta{position.x - GetPosition().x, position.y - GetPosition().y};
    UIFeatureMolecule::SetPosition(position);
    m_label.Move(delta);
    m_switch.Move(delta);
    if (m_slider)
        m_slider->move(delta, false);
    ForTexts([&](UITextControl& text) { text.move(delta, false); });
}

void UISliderMolecule::ReadRules()
{
    m_rules.ranges = o7::numberRanges(*GetSite()
                                           .featureServices.GetListOfFeaturesFor(GetBoundFeature())
                                           .GetIntegerFeature(GetBoundFeature())
                                           .GetRangeCapabilities());
}

std::optional<int> UISliderMolecule::ReadNumber() const
{
    int value = 0;
    const auto feature = GetSite()
                             .featureServices.GetListOfFeaturesFor(GetBoundFeature())
                             .GetIntegerFeature(GetBoundFeature());
    if (!feature.GetValue(value, FeatureRef::kDoNotAssertIfUnsupported))
        return std::nullopt;
    return value;
}

void UISliderMolecule::ShowNumberText(const CXString& text)
{
    if (m_number)
        m_number->setLabelText(text);
}

void UISliderMolecule::ShowNumber(std::optional<int> value)
{
    m_value = value;
    if (!m_slider)
        return;
    m_slider->setPosition(value.value_or(m_slider->getMinimum()));
    ShowNumberText(value ? m_rules.text(*value) : CXString());
}

void UISliderMolecule::LoadValue()
{
    m_switch.Load();
    ShowNumber(m_cleared ? std::nullopt : ReadNumber());
    EnableSlider(IsEnabled() && m_switch.IsOn());
}

void UISliderMolecule::EnableSlider(bool enabled)
{
    if (m_slider)
        m_slider->setEnable(enabled);
    ForTexts([enabled](UITextControl& text) { text.setEnable(enabled); });
}

void UISliderMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    m_cleared = !enabled && state.IsCleared();
    m_label.Enable(enabled);
    m_switch.Enable(enabled, IsForceDisabled());
    LoadValue();
}

void UISliderMolecule::CompleteState(const CapabilitiesNode& capabilities,
                                     InterpretedState& state) const
{
    UIFeatureMolecule::CompleteState(capabilities, state);
    m_switch.AddReason(state);
}

bool UISliderMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (m_switch.HandleMessage(message)) {
        LoadValue();
        return true;
    }
    if (message.message == WM_HSCROLL && m_slider &&
        reinterpret_cast<HWND>(message.lParam) == m_slider->getHwnd()) {
        Slid(LOWORD(message.wParam));
        return true;
    }
    return ProcessCommonMessage(message);
}

// A drag reports every pixel; only where it ends is meant.
void UISliderMolecule::Slid(int code)
{
    const auto position = static_cast<int>(m_rules.nearest(m_slider->getPosition()));
    if (code == TB_THUMBTRACK) {
        ShowNumberText(m_rules.text(position));
        return;
    }
    if (position != m_value) {
        const auto transaction = GetSite().featureServices.OpenTransaction();
        GetSite().valueWriter.SetInteger(GetBoundFeature(), position);
        LoadValue();
        transaction->Close(true);
        return;
    }
    ShowNumber(m_value); // a place between two allowed ones is no value
}

void UISliderMolecule::CollectWantedMessages(UIMessageMask& mask) const
{
    UIFeatureMolecule::CollectWantedMessages(mask);
    mask.add(WM_HSCROLL);
}

bool UISliderMolecule::Focus()
{
    return UIFeatureMolecule::Focus() || m_switch.Focus();
}

void UISliderMolecule::Show(bool shown)
{
    UIFeatureMolecule::Show(shown);
    m_label.Show(shown);
    m_switch.Show(shown);
    if (m_slider)
        m_slider->setShow(shown);
    ForTexts([shown](UITextControl& text) { text.setShow(shown); });
}

HWND UISliderMolecule::InfoAnchor() const
{
    return m_slider ? m_slider->getHwnd() : nullptr;
}

void UISliderMolecule::DumpControls() const
{
    m_switch.Dump();
    o7::dumpControl(L"slider", m_label.IsEmpty() ? m_switch.GetText() : m_label.GetText(),
                    m_value ? m_rules.text(*m_value) : CXString(), StateText(), GetInfoText());
    if (!m_slider || !UIDump::isCollecting())
        return;
    const UIDump::Level inner;
    UIDump::line(
        (L"- " + CXString::Formatted(GetSite().strings.LoadStringW(O7STR_M_RANGE_PART).c_str(),
                                     m_rules.text(m_slider->getMinimum()).c_str(),
                                     m_rules.text(m_slider->getMaximum()).c_str()))
            .View());
}

CXString UISliderMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UISliderMolecule:UIFeatureMolecule:UIMolecule");
}
