#include "uicheckboxmolecule.h"

#include <algorithm>

#include "booleanfeatureref.h"
#include "featureservices.h"
#include "optionfeatureref.h"
#include "uicheckboxcontrol.h"
#include "uicheckcontroldata.h"
#include "uicontroldata.h"
#include "uiimagecontroldata.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uitextcontrol.h"
#include "uivaluewriter.h"

namespace {

// Dialog units.
constexpr long kHeight = 10;
constexpr long kRaisedHeight = 19; // room for a button beside the box
constexpr long kTextHeight = 8;
constexpr long kIndentStep = 10; // the width of the check mark and its gap

} // namespace

UICheckBoxMolecule::UICheckBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIFeatureMolecule(data, site)
{
}

UICheckBoxMolecule::~UICheckBoxMolecule() = default;

void UICheckBoxMolecule::InitializeFromDescription()
{
    long least = 0;
    bool raised = false;
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
            least = static_cast<long>(
                static_cast<const UIImageControlData&>(*control).getMinimumHeight());
            break;
        case UIControlKind::Text:
            (m_checkText ? m_secondTextNumber : m_labelText) = control->getLabel();
            break;
        default:
            break;
        }
    }
    SetMinimumExtent({0, std::max(raised ? kRaisedHeight : kHeight, least)});
}

void UICheckBoxMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const POINT place = GetPosition();
    const long indent = kIndentStep * static_cast<long>(GetData().getIndent());
    long x = place.x + indent;
    long width = GetContentWidth() - indent;
    const auto createText = [&](unsigned number, long textX, long textWidth) {
        auto text = std::make_unique<UITextControl>(
            page.window, page.takeId(), GetSite().services, page.font, POINT{textX, place.y + 1},
            SIZE{textWidth, kTextHeight}, SS_NOTIFY, true, page.boldFont);
        text->setLabelText(LoadText(number));
        return text;
    };
    if (m_labelText) {
        m_label = createText(m_labelText, x, width / 2);
        x += width / 2;
        width -= width / 2;
    }
    const long checkWidth = m_secondTextNumber ? width / 2 : width;
    m_check = std::make_unique<UICheckBoxControl>(page.window, page.takeId(), GetSite().services,
                                                  page.font, POINT{x, place.y},
                                                  SIZE{checkWidth, kHeight}, m_threeState);
    m_check->setLabelText(LoadText(m_checkText));
    if (m_secondTextNumber)
        m_secondText = createText(m_secondTextNumber, x + checkWidth, width - checkWidth);
}

void UICheckBoxMolecule::SetPosition(POINT position)
{
    const POINT delta{position.x - GetPosition().x, position.y - GetPosition().y};
    UIFeatureMolecule::SetPosition(position);
    if (m_label)
        m_label->move(delta, false);
    if (m_check)
        m_check->move(delta, false);
    if (m_secondText)
        m_secondText->move(delta, false);
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
    SendMessageW(m_check->getHwnd(), BM_SETCHECK, check, 0);
}

void UICheckBoxMolecule::LoadValue()
{
    ShowCheck(m_cleared ? BST_UNCHECKED : ReadCheck());
}

void UICheckBoxMolecule::ShowState(const InterpretedState& state, bool enabled)
{
    m_cleared = !enabled && state.IsCleared();
    LoadValue();
    for (UITextControl* text : {m_label.get(), m_secondText.get()})
        if (text)
            text->setEnable(enabled);
    if (m_check)
        m_check->setEnable(enabled);
}

bool UICheckBoxMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_COMMAND) {
        const HWND sender = reinterpret_cast<HWND>(message.lParam);
        const auto code = HIWORD(message.wParam);
        if (m_check && sender == m_check->getHwnd() && code == BN_CLICKED) {
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

void UICheckBoxMolecule::Toggle()
{
    const HWND check = m_check->getHwnd();
    const bool checked = SendMessageW(check, BM_GETCHECK, 0, 0) == BST_CHECKED;
    SendMessageW(check, BM_SETCHECK, checked ? BST_UNCHECKED : BST_CHECKED, 0);
    WriteCheck();
}

void UICheckBoxMolecule::WriteCheck()
{
    m_shownCheck = static_cast<WPARAM>(SendMessageW(m_check->getHwnd(), BM_GETCHECK, 0, 0));
    UIValueWriter& writer = GetSite().valueWriter;
    const bool checked = m_shownCheck == BST_CHECKED;
    if (!IsBoolean())
        writer.SetOption(GetBoundFeature(), checked ? m_checkedValue : m_uncheckedValue);
    else if (m_shownCheck == BST_INDETERMINATE)
        writer.SetIsSpecified(GetBoundFeature(), false);
    else
        writer.SetBoolean(GetBoundFeature(), checked);
    LoadValue(); // the model may have refused the write
}

void UICheckBoxMolecule::Show(bool shown)
{
    UIFeatureMolecule::Show(shown);
    for (UITextControl* text : {m_label.get(), m_secondText.get()})
        if (text)
            text->setShow(shown);
    if (m_check)
        m_check->setShow(shown);
}

HWND UICheckBoxMolecule::InfoAnchor() const
{
    return m_check ? m_check->getHwnd() : nullptr;
}

void UICheckBoxMolecule::DumpControls() const
{
    const wchar_t* const names[] = {L"unchecked", L"checked", L"indeterminate"};
    o7::dumpControl(L"check", LoadText(m_checkText), CXString(names[m_shownCheck]), StateText(),
                    GetInfoText());
}

CXString UICheckBoxMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UICheckBoxMolecule:UIFeatureMolecule:UIMolecule");
}
