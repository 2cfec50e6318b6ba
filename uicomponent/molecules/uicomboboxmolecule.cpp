#include "uicomboboxmolecule.h"

#include <algorithm>
#include <utility>

#include "uicomboboxcontrol.h"
#include "uicombocontroldata.h"
#include "uicontroldata.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "windowtext.h"

namespace {

// Dialog units.
constexpr long kListHeight = 12;       // closed, at least
constexpr long kRaisedListHeight = 21; // with room for a button beside it
constexpr long kBoxHeight = 14;        // closed, as drawn

} // namespace

UIComboBoxMolecule::UIComboBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIComboListBaseMolecule(data, site)
{
}

UIComboBoxMolecule::~UIComboBoxMolecule() = default;

void UIComboBoxMolecule::InitializeFromDescription()
{
    long least = 0;
    bool raised = GetData().hasRaisedHeight();
    for (const auto& control : GetData().getControls()) {
        switch (control->getKind()) {
        case UIControlKind::Combo:
            SetBoundFeature(FeatureIdWithContext(FeatureId(control->getFeature())));
            least = static_cast<long>(
                static_cast<const UIComboControlData&>(*control).getMinimumHeight());
            break;
        case UIControlKind::BitmapButton:
            raised = true;
            break;
        case UIControlKind::Text:
            m_label.Set(LoadText(control->getLabel()), GetLabelWidth());
            break;
        default:
            break;
        }
    }
    m_boxHeight = std::max({raised ? kRaisedListHeight : kListHeight, least, kBoxHeight});
    UpdateMinimumHeight();
}

void UIComboBoxMolecule::UpdateMinimumHeight()
{
    SetMinimumExtent({0, m_boxHeight + m_label.GetHeightAbove()});
}

void UIComboBoxMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_label.Fit(ruler, width - kInfoLane);
    UpdateMinimumHeight();
}

long UIComboBoxMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    return m_label.GetWantedWidth(ruler);
}

void UIComboBoxMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const POINT place = GetPosition();
    m_label.Create(page, GetSite().services, place, GetContentWidth());
    const long labelWidth = m_label.GetBesideWidth();
    m_combo = std::make_unique<UIComboBoxControl>(
        page.window, page.takeId(), GetSite().services, page.font,
        POINT{place.x + labelWidth, place.y + GetMinimumHeight() - kBoxHeight},
        SIZE{GetContentWidth() - labelWidth, kBoxHeight});
    m_combo->setUnavailableReasons(GetToolTips(), [this](int index) { return ReasonOf(index); });
    // The system's own name for a list is its present text.
    m_combo->setAccessibleName(o7::spokenName(m_label.GetText()));
}

void UIComboBoxMolecule::SetPosition(POINT position)
{
    const POINT delta{position.x - GetPosition().x, position.y - GetPosition().y};
    UIComboListBaseMolecule::SetPosition(position);
    m_label.Move(delta);
    if (m_combo)
        m_combo->move(delta, false);
}

IComboListControl* UIComboBoxMolecule::List() const
{
    return m_combo.get();
}

void UIComboBoxMolecule::FillTogether(const std::function<void()>& fill)
{
    const UIComboBoxControl::Fill filling(*m_combo);
    fill();
}

void UIComboBoxMolecule::EnableControls(bool enabled)
{
    m_label.Enable(enabled);
    if (m_combo)
        m_combo->setEnable(enabled);
}

bool UIComboBoxMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (!m_combo)
        return false;
    const HWND combo = m_combo->getHwnd();
    if (message.message == WM_COMMAND && reinterpret_cast<HWND>(message.lParam) == combo)
        return HandleNotification(HIWORD(message.wParam));
    return m_combo->handleMessage(message) || ProcessCommonMessage(message);
}

bool UIComboBoxMolecule::HandleNotification(int notification)
{
    switch (notification) {
    case CBN_SELCHANGE:
        ChooseEntry(m_combo->getSelection(true));
        return true;
    case CBN_SELENDCANCEL:
        m_choiceCancelled = true;
        return true;
    case CBN_CLOSEUP:
        // The mouse moves the selection of an open list without a word. Not every system tells when
        // Enter then takes it, or puts it back when Escape does not.
        if (std::exchange(m_choiceCancelled, false))
            ShowChoice();
        else
            ChooseEntry(m_combo->getSelection(true));
        return true;
    default:
        return false;
    }
}

void UIComboBoxMolecule::LookChanged()
{
    if (m_combo)
        m_combo->repaint(true);
}

void UIComboBoxMolecule::Show(bool shown)
{
    UIComboListBaseMolecule::Show(shown);
    m_label.Show(shown);
    if (m_combo)
        m_combo->setShow(shown);
}

HWND UIComboBoxMolecule::InfoAnchor() const
{
    return m_combo ? m_combo->getHwnd() : nullptr;
}

void UIComboBoxMolecule::DumpControls() const
{
    o7::dumpControl(L"list", m_label.GetText(), ShownText(), StateText(), GetInfoText());
    DumpOptions();
}

CXString UIComboBoxMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIComboBoxMolecule:UIComboListBaseMolecule:UIFeatureMolecule:UIMolecule");
}
