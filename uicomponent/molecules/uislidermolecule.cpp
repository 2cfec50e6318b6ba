#include "uislidermolecule.h"

#include <commctrl.h>

#include <algorithm>

#include "featureservices.h"
#include "integerfeatureref.h"
#include "numberranges.h"
#include "productstringloader.h"
#include "uidump.h"
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

} // namespace

UISliderMolecule::UISliderMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UINumberMolecule(data, site, kSwitchGap)
{
}

UISliderMolecule::~UISliderMolecule() = default;

bool UISliderMolecule::TakeControl(const UIControlData& control)
{
    if (control.getKind() != UIControlKind::Slider)
        return false;
    m_sliderData = static_cast<const UISliderControlData*>(&control);
    return true;
}

long UISliderMolecule::EndsHeight() const
{
    const bool hasEnds =
        m_sliderData && (m_sliderData->getLowLabel() || m_sliderData->getHighLabel());
    return hasEnds ? UITextRuler::kLineHeight : 0;
}

long UISliderMolecule::GetNumberHeight() const
{
    return kSliderHeight + EndsHeight();
}

void UISliderMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    UINumberMolecule::FitTexts(ruler, width);
    FitEnds(ruler, width - kInfoLane - GetBesideWidth() - kNumberWidth);
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

void UISliderMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    CreateLabelAndSwitch(page);
    const long beside = GetBesideWidth();
    const POINT place{GetPosition().x + beside, GetNumberTop()};
    const long width = GetContentWidth() - beside - kNumberWidth;
    ReadRules();
    CreateSlider(page, place, width);
    CreateEnds(page, {place.x, place.y + kSliderHeight}, width);
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
    const auto ends = Ends();
    m_slider = std::make_unique<UISliderControl>(
        page.window, page.takeId(), GetSite().services, page.font, place,
        SIZE{width, kSliderHeight}, TBS_TOOLTIPS | TBS_DOWNISLEFT, static_cast<int>(ends.low),
        static_cast<int>(ends.high));
    if (m_sliderData) {
        m_slider->setTickFrequency(m_sliderData->getTickFrequency());
        m_slider->setSteps(1, m_sliderData->getPageSize());
    }
    m_slider->setAccessibleName(o7::spokenName(GetName()));
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
    m_lowEnd = CreateText(page, place, lowWidth, SS_LEFT | SS_ENDELLIPSIS);
    m_lowEnd->setLabelText(LoadText(m_sliderData->getLowLabel()));
    m_highEnd = CreateText(page, {place.x + lowWidth, place.y}, width - lowWidth,
                           SS_RIGHT | SS_ENDELLIPSIS);
    m_highEnd->setLabelText(LoadText(m_sliderData->getHighLabel()));
}

template <class Do> void UISliderMolecule::ForTexts(Do&& act) const
{
    for (UITextControl* text : {m_number.get(), m_lowEnd.get(), m_highEnd.get()})
        if (text)
            act(*text);
}

void UISliderMolecule::MoveControls(POINT delta)
{
    UINumberMolecule::MoveControls(delta);
    if (m_slider)
        m_slider->move(delta, false);
    ForTexts([&](UITextControl& text) { text.move(delta, false); });
}

void UISliderMolecule::ReadRules()
{
    const auto feature = GetSite()
                             .featureServices.GetListOfFeaturesFor(GetBoundFeature())
                             .GetIntegerFeature(GetBoundFeature());
    m_rules = o7::wholeNumberRules(*feature.GetRangeCapabilities(), GetSite().services);
}

void UISliderMolecule::RenewRules()
{
    ReadRules();
    if (!m_slider)
        return;
    const auto ends = Ends();
    m_slider->setRange(static_cast<int>(ends.low), static_cast<int>(ends.high));
}

UINumberRules::Range UISliderMolecule::Ends() const
{
    constexpr UINumberRules::Range kWithoutLimits{0, 100};
    return m_rules.ranges.empty()
               ? kWithoutLimits
               : UINumberRules::Range{m_rules.ranges.front().low, m_rules.ranges.back().high};
}

void UISliderMolecule::ShowNumberText(const CXString& text)
{
    if (m_number)
        m_number->setLabelText(text);
}

void UISliderMolecule::ShowNumber(std::optional<std::int64_t> value)
{
    m_value = value;
    if (!m_slider)
        return;
    m_slider->setPosition(value ? static_cast<int>(*value) : m_slider->getMinimum());
    ShowNumberText(value ? m_rules.text(*value) : CXString());
}

void UISliderMolecule::EnableNumber(bool enabled)
{
    if (m_slider)
        m_slider->setEnable(enabled);
    ForTexts([enabled](UITextControl& text) { text.setEnable(enabled); });
}

bool UISliderMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_HSCROLL && m_slider &&
        reinterpret_cast<HWND>(message.lParam) == m_slider->getHwnd()) {
        Slid(LOWORD(message.wParam));
        return true;
    }
    return UINumberMolecule::HandleMessage(message);
}

/// The allowed value that is meant. An arrow key goes over what cannot be chosen, instead of
/// stopping before it.
std::int64_t UISliderMolecule::PositionFor(int code) const
{
    const std::int64_t position = m_slider->getPosition();
    const bool byArrow = code == TB_LINEUP || code == TB_LINEDOWN;
    return byArrow && m_value && position != *m_value
               ? m_rules.step(*m_value, position > *m_value ? 1 : -1)
               : m_rules.nearest(position);
}

// A drag reports every pixel; only where it ends is meant.
void UISliderMolecule::Slid(int code)
{
    const std::int64_t position = PositionFor(code);
    if (code == TB_THUMBTRACK) {
        ShowNumberText(m_rules.text(position));
        return;
    }
    const auto write = [&] {
        return GetSite().valueWriter.SetInteger(GetBoundFeature(), static_cast<int>(position));
    };
    if (position == m_value || !WriteAndReadBack(write))
        ShowNumber(m_value); // a place between two allowed ones is no value
}

void UISliderMolecule::CollectWantedMessages(UIMessageMask& mask) const
{
    UINumberMolecule::CollectWantedMessages(mask);
    mask.add(WM_HSCROLL);
}

void UISliderMolecule::Show(bool shown)
{
    UINumberMolecule::Show(shown);
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
    DumpSwitch();
    o7::dumpControl(L"slider", GetName(), m_value ? m_rules.text(*m_value) : CXString(),
                    StateText(), GetInfoText());
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
    return CXString(L"UISliderMolecule:UINumberMolecule:UIFeatureMolecule:UIMolecule");
}
