#include "uigroupboxmolecule.h"

#include <algorithm>

#include "uigroupboxcontrol.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uimoleculefactory.h"
#include "uimoleculestack.h"
#include "uitextruler.h"

namespace {

// Dialog units.
constexpr long kInset = 9;
// The lane of the info buttons reaches this far into the right margin, so that the boxes inside
// stay as wide as they can be.
constexpr long kInsetRight = 4;

} // namespace

UIGroupBoxMolecule::UIGroupBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIMolecule(data, site)
{
    m_inner = UIMoleculeFactory::createAll(data.getChildren(), site);
}

UIGroupBoxMolecule::~UIGroupBoxMolecule() = default;

bool UIGroupBoxMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    return ProcessCommonMessage(message);
}

void UIGroupBoxMolecule::InitializeFromDescription()
{
    for (const auto& molecule : m_inner) {
        molecule->SetLabelWidth(GetLabelWidth());
        molecule->InitializeFromDescription();
    }
    UpdateMinimumHeight();
}

void UIGroupBoxMolecule::UpdateMinimumHeight()
{
    SetMinimumExtent(
        {0, m_gaps.firstTop + UIMoleculeStack::height(m_inner, m_gaps) + m_gaps.lastBelow});
}

void UIGroupBoxMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    UIColumnFit fit = ruler.GetFit();
    m_gaps = fit.gaps;
    fit.labelWidth -= std::min(fit.labelWidth, kInset); // boxes inside and outside stand on a line
    const UITextRuler inside = ruler.ForColumn(fit);
    UIMoleculeStack::fitTexts(m_inner, inside, width - kInset - kInsetRight);
    if (inside.HasCut())
        ruler.NoteCut();
    UpdateMinimumHeight();
}

long UIGroupBoxMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    const long wanted = UIMoleculeStack::wantedLabelWidth(m_inner, ruler);
    return wanted ? wanted + kInset : 0;
}

void UIGroupBoxMolecule::SetPositionAndWidth(POINT position, long width)
{
    UIMolecule::SetPositionAndWidth(position, width);
    UIMoleculeStack::place(m_inner, {position.x + kInset, position.y + m_gaps.firstTop},
                           width - kInset - kInsetRight, m_gaps);
}

void UIGroupBoxMolecule::MoveControls(POINT delta)
{
    if (m_frame)
        m_frame->move(delta, false);
    for (const auto& molecule : m_inner) {
        const POINT old = molecule->GetPosition();
        molecule->SetPosition({old.x + delta.x, old.y + delta.y});
    }
}

void UIGroupBoxMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    m_frame = std::make_unique<UIGroupBoxControl>(
        page.window, page.takeId(), GetSite().services, page.font, GetPosition(),
        SIZE{GetWidth(), GetMinimumHeight()}, LoadText(GetData().getTitle()));
}

void UIGroupBoxMolecule::Inner(std::vector<UIMolecule*>& molecules)
{
    for (const auto& molecule : m_inner) {
        molecules.push_back(molecule.get());
        molecule->Inner(molecules);
    }
}

void UIGroupBoxMolecule::Show(bool shown)
{
    UIMolecule::Show(shown);
    if (m_frame)
        m_frame->setShow(shown);
}

void UIGroupBoxMolecule::DumpControls() const
{
    o7::dumpControl(L"group", LoadText(GetData().getTitle()), CXString(), CXString(), CXString());
}

CXString UIGroupBoxMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIGroupBoxMolecule:UIMolecule");
}
