#include "uicheckboxmolecule.h"

#include <algorithm>
#include <utility>

#include "booleanfeatureref.h"
#include "capabilitiesnode.h"
#include "featureservices.h"
#include "isolationaware.h"
#include "optionfeatureref.h"
#include "uicheckboxcontrol.h"
#include "uicheckcontroldata.h"
#include "uicontroldata.h"
#include "uiimagecontrol.h"
#include "uiimagecontroldata.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uitextcontrol.h"
#include "uitextruler.h"
#include "uivaluewriter.h"

namespace {

// Dialog units.
constexpr long kHeight = 10;
constexpr long kRaisedHeight = 19; // room for a button beside the box
constexpr long kAroundLines = 2;   // what a box is higher than its lines of text
constexpr long kMark = 12;         // the check mark and its gap
constexpr long kIndentStep = 10;
constexpr long kImageGap = 4;

} // namespace

UICheckBoxMolecule::UICheckBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIFeatureMolecule(data, site)
{
}

UICheckBoxMolecule::~UICheckBoxMolecule() = default;

void UICheckBoxMolecule::InitializeFromDescription()
{
    bool raised = GetData().hasRaisedHeight();
    for (const auto& control : GetData().getControls()) {
        switch (control->getKind()) {
        case UIControlKind::Check: {
            const auto& check = static_cast<const UICheckControlData&>(*control);
            SetBoundFeature(FeatureIdWithContext(FeatureId(check.getFeature())));
            m_checkText = check.getLabel();
            m_checkedValue = check.getCheckedValue();
            m_uncheckedValue = check.getUncheckedValue();
            m_threeState = check.isThreeState();
            m_secondTextToggles = check.secondTextToggles();
            break;
        }
        case UIControlKind::BitmapButton:
            raised = true;
            break;
        case UIControlKind::Image:
            m_imageData = static_cast<const UIImageControlData*>(control.get());
            break;
        case UIControlKind::Text:
            if (m_checkText)
                m_secondTextNumber = control->getLabel();
            else
                m_label.Set(LoadText(control->getLabel()), GetLabelWidth());
            break;
        default:
            break;
        }
    }
    const long least = m_imageData ? static_cast<long>(m_imageData->getMinimumHeight()) : 0;
    m_boxHeight = std::max(raised ? kRaisedHeight : kHeight, least);
    UpdateMinimumHeight();
}

void UICheckBoxMolecule::UpdateMinimumHeight()
{
    const long lines = std::max(m_checkLines, m_secondLines);
    const long texts = lines * UITextRuler::kLineHeight + kAroundLines;
    SetMinimumExtent({0, m_label.GetHeightAbove() + std::max(m_boxHeight, texts)});
}

long UICheckBoxMolecule::GetCheckX() const
{
    return m_label.GetBesideWidth() + kIndentStep * static_cast<long>(GetData().getIndent());
}

long UICheckBoxMolecule::GetTextWidth(long width) const
{
    const long image = m_imageData ? m_boxHeight + kImageGap : 0; // a square
    return width - kInfoLane - GetCheckX() - image;
}

void UICheckBoxMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_label.Fit(ruler, width - kInfoLane);
    const CXString text = LoadText(m_checkText);
    const CXString second = LoadText(m_secondTextNumber);
    const long room = GetTextWidth(width);
    const long wanted = kMark + ruler.WidthOf(text);
    // Side by side where they have room for one line each, in equal halves where not.
    m_checkWidth = second.IsEmpty() ? room : wanted;
    if (!second.IsEmpty() && wanted + ruler.WidthOf(second) > room)
        m_checkWidth = room / 2;
    m_checkLines = ruler.LinesOf(text, m_checkWidth - kMark);
    m_secondLines = second.IsEmpty() ? 1 : ruler.LinesOf(second, room - m_checkWidth);
    UpdateMinimumHeight();
}

long UICheckBoxMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    return m_label.GetWantedWidth(ruler);
}

void UICheckBoxMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const POINT place = GetPosition();
    UIServices& services = GetSite().services;
    m_label.Create(page, services, place, GetContentWidth());

    const long room = GetTextWidth(GetWidth());
    const long checkWidth = !m_secondTextNumber ? room : m_checkWidth ? m_checkWidth : room / 2;
    const long top = place.y + m_label.GetHeightAbove();
    const long height = GetMinimumHeight() - m_label.GetHeightAbove();
    const long x = place.x + GetCheckX();
    const auto centred = [=](long lines, long around) {
        const long needed = lines * UITextRuler::kLineHeight + around;
        return std::pair(top + (height - needed) / 2, needed);
    };
    const auto [checkY, checkHeight] = centred(m_checkLines, kAroundLines);
    m_check = std::make_unique<UICheckBoxControl>(page.window, page.takeId(), services, page.font,
                                                  POINT{x, checkY}, SIZE{checkWidth, checkHeight},
                                                  m_threeState && !IsRequired());
    if (m_checkLines > 1)
        m_check->setMultiline();
    m_check->setLabelText(LoadText(m_checkText));
    if (m_secondTextNumber) {
        const auto [textY, textHeight] = centred(m_secondLines, 0);
        m_secondText = std::make_unique<UITextControl>(
            page.window, page.takeId(), services, page.font, POINT{x + checkWidth, textY},
            SIZE{room - checkWidth, textHeight}, SS_NOTIFY, true, page.boldFont);
        m_secondText->setLabelText(LoadText(m_secondTextNumber));
    }
    if (m_imageData) {
        const POINT corner{x + room + kImageGap, top + (height - m_boxHeight) / 2};
        m_image = std::make_unique<UIImageControl>(page.window, page.takeId(), services, page.font,
                                                   corner, SIZE{m_boxHeight, m_boxHeight}, 0, true);
        ShowOnDependants();
    }
}

// What has to be specified has no third state to click through.
bool UICheckBoxMolecule::IsRequired() const
{
    const auto feature =
        IsBound() ? GetSite().featureServices.GetFeatureRef(GetBoundFeature()) : nullptr;
    const auto capabilities = feature ? feature->GetCapabilities() : nullptr;
    return capabilities && capabilities->IsRequired();
}

void UICheckBoxMolecule::MoveControls(POINT delta)
{
    m_label.Move(delta);
    if (m_check)
        m_check->move(delta, false);
    if (m_secondText)
        m_secondText->move(delta, false);
    if (m_image)
        m_image->move(delta, false);
}

WPARAM UICheckBoxMolecule::ReadCheck() const
{
    FeatureServices& services = GetSite().featureServices;
    if (IsBoolean()) {
        bool value = false;
        const auto feature =
            services.GetListOfFeaturesFor(GetBoundFeature()).GetBooleanFeature(GetBoundFeature());
        if (!feature.GetValue(value, FeatureRef::kDoNotAssertIfUnsupported))
            return BST_INDETERMINATE;
        return value ? BST_CHECKED : BST_UNCHECKED;
    }
    ValueId value;
    if (!services.GetOptionFeatureRef(GetBoundFeature())
             .GetValue(value, FeatureRef::kDoNotAssertIfUnsupported))
        return BST_INDETERMINATE;
    return value.GetValueEnum() == m_checkedValue ? BST_CHECKED : BST_UNCHECKED;
}

void UICheckBoxMolecule::ShowCheck(WPARAM check)
{
    if (!m_check || check == m_shownCheck)
        return;
    m_shownCheck = check;
    m_check->setCheck(static_cast<int>(check));
    ShowOnDependants();
}

void UICheckBoxMolecule::ShowOnDependants()
{
    if (!m_image)
        return;
    // An indeterminate box has no value, and so the general picture.
    auto value = DataModelIds::kValueUnspecified;
    if (m_shownCheck != BST_INDETERMINATE)
        value = IsBoolean() ? UIOptionRecord::valueOf(m_shownCheck == BST_CHECKED)
                            : (m_shownCheck == BST_CHECKED ? m_checkedValue : m_uncheckedValue);
    m_image->setImage(IsolationAware::moduleInstance(), ImageType::Binary,
                      static_cast<int>(m_imageData->getImage(value)));
}

void UICheckBoxMolecule::LoadValue()
{
    ShowCheck(m_cleared ? BST_UNCHECKED : ReadCheck());
}

void UICheckBoxMolecule::Refresh()
{
    UIFeatureMolecule::Refresh();
    if (m_check)
        m_check->setCheck(static_cast<int>(m_shownCheck));
}

void UICheckBoxMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    m_cleared = !enabled && state.IsCleared();
    LoadValue();
    m_label.Enable(enabled);
    if (m_secondText)
        m_secondText->setEnable(enabled);
    if (m_check)
        m_check->setEnable(enabled);
    if (m_image)
        m_image->setEnable(enabled);
}

bool UICheckBoxMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_COMMAND && m_check) {
        const HWND sender = reinterpret_cast<HWND>(message.lParam);
        const auto code = HIWORD(message.wParam);
        if (sender == m_check->getHwnd() && code == BN_CLICKED) {
            WriteCheck();
            return true;
        }
        if (m_secondText && m_secondTextToggles && sender == m_secondText->getHwnd() &&
            (code == STN_CLICKED || code == STN_DBLCLK)) {
            Toggle();
            return true;
        }
    }
    return ProcessCommonMessage(message);
}

// What a click on the box itself does.
void UICheckBoxMolecule::Toggle()
{
    Focus();
    const HWND check = m_check->getHwnd();
    const bool checked = SendMessageW(check, BM_GETCHECK, 0, 0) == BST_CHECKED;
    SendMessageW(check, BM_SETCHECK, checked ? BST_UNCHECKED : BST_CHECKED, 0);
    WriteCheck();
}

void UICheckBoxMolecule::WriteCheck()
{
    m_shownCheck = static_cast<WPARAM>(m_check->getCheck());
    ShowOnDependants();
    const bool checked = m_shownCheck == BST_CHECKED;
    WriteAndReadBack([&, this] {
        UIValueWriter& writer = GetSite().valueWriter;
        if (!IsBoolean())
            return writer.SetOption(GetBoundFeature(), checked ? m_checkedValue : m_uncheckedValue);
        return m_shownCheck == BST_INDETERMINATE ? writer.SetIsSpecified(GetBoundFeature(), false)
                                                 : writer.SetBoolean(GetBoundFeature(), checked);
    });
    LoadValue(); // the model may have refused the write
    m_check->setCheck(static_cast<int>(m_shownCheck));
}

void UICheckBoxMolecule::SetHiddenBySetting(bool hidden)
{
    m_hiddenBySetting = hidden;
    if (GetPage())
        LoadState();
}

void UICheckBoxMolecule::Show(bool shown)
{
    UIFeatureMolecule::Show(shown);
    m_label.Show(shown);
    if (m_secondText)
        m_secondText->setShow(shown);
    if (m_check)
        m_check->setShow(shown);
    if (m_image)
        m_image->setShow(shown);
}

HWND UICheckBoxMolecule::InfoAnchor() const
{
    return m_check ? m_check->getHwnd() : nullptr;
}

void UICheckBoxMolecule::DumpControls() const
{
    if (!m_label.IsEmpty())
        o7::dumpControl(L"text", m_label.GetText(), CXString(), CXString(), CXString());
    const wchar_t* const names[] = {L"unchecked", L"checked", L"indeterminate"};
    o7::dumpControl(L"check", LoadText(m_checkText), CXString(names[m_shownCheck]), StateText(),
                    GetInfoText());
    if (m_secondTextNumber)
        o7::dumpControl(L"text", LoadText(m_secondTextNumber), CXString(), CXString(), CXString());
    if (m_image)
        m_image->dump();
}

CXString UICheckBoxMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UICheckBoxMolecule:UIFeatureMolecule:UIMolecule");
}
