#include "uistatusmolecule.h"

#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uitextcontrol.h"
#include "uitooltips.h"
#include "windowtext.h"

namespace {

// Dialog units: as high as a button beside it, the text on the line of the button's.
constexpr long kHeight = 14;
constexpr long kTextTop = 3;
constexpr long kTextHeight = 8;

} // namespace

UIStatusMolecule::UIStatusMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIMolecule(data, site)
{
}

UIStatusMolecule::~UIStatusMolecule() = default;

void UIStatusMolecule::InitializeFromDescription()
{
    SetMinimumExtent({0, kHeight});
}

void UIStatusMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const POINT place = GetPosition();
    m_text = std::make_unique<UITextControl>(page.window, page.takeId(), GetSite().services,
                                             page.font, POINT{place.x, place.y + kTextTop},
                                             SIZE{GetContentWidth(), kTextHeight},
                                             SS_NOPREFIX | SS_ENDELLIPSIS, true, page.boldFont);
}

void UIStatusMolecule::SetStatus(const Status& status)
{
    const bool alarms = status.inConflict && !m_status.inConflict;
    m_status = status;
    if (!m_text)
        return;
    if (o7::setWindowTextIfDifferent(m_text->getHwnd(), status.text) && GetToolTips())
        GetToolTips()->AddToolTipAndTruncatedLabel(
            UIToolTips::ControlType::StaticText, m_text->getHwnd(), 0,
            m_text->getDimensionInPixels(), status.text, m_text->getParentFont());
    if (alarms)
        NotifyWinEvent(EVENT_SYSTEM_ALERT, m_text->getHwnd(), OBJID_CLIENT, CHILDID_SELF);

    InterpretedState state;
    if (status.inConflict)
        state.AddConflict(status.reasons);
    else if (!status.reasons.IsEmpty())
        state.AddInfo(status.reasons);
    UpdateInfoButton(FeatureIdWithContext(), state);
}

CXString UIStatusMolecule::GetInfoTitle(const FeatureIdWithContext&) const
{
    return m_status.reasonsTitle;
}

void UIStatusMolecule::MoveControls(POINT delta)
{
    if (m_text)
        m_text->move(delta, false);
}

bool UIStatusMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    return ProcessCommonMessage(message);
}

void UIStatusMolecule::Show(bool shown)
{
    UIMolecule::Show(shown);
    if (m_text)
        m_text->setShow(shown);
}

HWND UIStatusMolecule::InfoAnchor() const
{
    return m_text ? m_text->getHwnd() : nullptr;
}

void UIStatusMolecule::DumpControls() const
{
    o7::dumpControl(L"status", m_status.text, CXString(), CXString(), m_status.reasons);
}

CXString UIStatusMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIStatusMolecule:UIMolecule");
}
