#include "uibuttonmolecule.h"

#include <algorithm>

#include "uibuttoncontrol.h"
#include "uibuttoncontroldata.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uitextruler.h"

namespace {

// Dialog units.
constexpr long kHeight = 14;
constexpr long kLeastWidth = 50;
constexpr long kAroundText = 12;

} // namespace

UIButtonMolecule::UIButtonMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIMolecule(data, site)
{
}

UIButtonMolecule::~UIButtonMolecule() = default;

void UIButtonMolecule::InitializeFromDescription()
{
    for (const auto& control : GetData().getControls()) {
        if (control->getKind() != UIControlKind::Button)
            continue;
        m_label = LoadText(control->getLabel());
        m_action = static_cast<const UIButtonControlData&>(*control).getAction();
    }
    SetMinimumExtent({0, kHeight});
}

void UIButtonMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_buttonWidth = std::min(width, std::max(kLeastWidth, ruler.WidthOf(m_label) + kAroundText));
}

void UIButtonMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const POINT place = GetPosition();
    const long width = m_buttonWidth ? m_buttonWidth : GetWidth();
    m_button = std::make_unique<UIButtonControl>(
        page.window, page.takeId(), GetSite().services, page.font,
        POINT{place.x + GetWidth() - width, place.y}, SIZE{width, kHeight}, false);
    SetWindowTextW(m_button->getHwnd(), m_label.c_str());
}

void UIButtonMolecule::SetEnabled(bool enabled)
{
    if (!m_button)
        return;
    const HWND button = m_button->getHwnd();
    if (!enabled && GetFocus() == button) {
        const HWND root = GetAncestor(button, GA_ROOT);
        const HWND next = GetNextDlgTabItem(root, button, FALSE);
        SendMessageW(root, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
    }
    m_button->setEnable(enabled);
}

bool UIButtonMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (message.message != WM_COMMAND || !m_button || HIWORD(message.wParam) != BN_CLICKED ||
        reinterpret_cast<HWND>(message.lParam) != m_button->getHwnd())
        return ProcessCommonMessage(message);
    if (m_pressed)
        m_pressed();
    return true;
}

void UIButtonMolecule::MoveControls(POINT delta)
{
    if (m_button)
        m_button->move(delta, false);
}

void UIButtonMolecule::Show(bool shown)
{
    UIMolecule::Show(shown);
    if (m_button)
        m_button->setShow(shown);
}

HWND UIButtonMolecule::InfoAnchor() const
{
    return m_button ? m_button->getHwnd() : nullptr;
}

void UIButtonMolecule::DumpControls() const
{
    const bool enabled = m_button && IsWindowEnabled(m_button->getHwnd());
    o7::dumpControl(L"button", m_label, CXString(), CXString(enabled ? L"enabled" : L"disabled"),
                    CXString());
}

CXString UIButtonMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIButtonMolecule:UIMolecule");
}
