#include "uicontainermolecule.h"

#include <algorithm>

#include "uicolumndata.h"
#include "uicontainer.h"
#include "uimoleculedata.h"
#include "uitextruler.h"

UIContainerMolecule::UIContainerMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIMolecule(data, site)
{
    if (const UIContainerData* nested = data.getNestedContainer())
        m_nested = std::make_unique<UIContainer>(*nested, site);
}

UIContainerMolecule::~UIContainerMolecule() = default;

void UIContainerMolecule::InitializeFromDescription()
{
    UpdateMinimumHeight();
}

void UIContainerMolecule::UpdateMinimumHeight()
{
    long height = 0;
    if (m_nested)
        for (const auto& column : m_nested->getColumns())
            height = std::max(height, column->getHeight());
    SetMinimumExtent({0, height});
}

void UIContainerMolecule::FitTexts(const UITextRuler& ruler, long)
{
    if (m_nested)
        for (const auto& column : m_nested->getColumns())
            column->fitTexts(ruler, ruler.GetFit());
    UpdateMinimumHeight();
}

void UIContainerMolecule::SetPositionAndWidth(POINT position, long width)
{
    UIMolecule::SetPositionAndWidth(position, width);
    if (!m_nested)
        return;
    for (const auto& column : m_nested->getColumns())
        column->place({position.x + column->getData().getX(), position.y});
}

void UIContainerMolecule::MoveControls(POINT delta)
{
    if (!m_nested)
        return;
    for (const auto& column : m_nested->getColumns()) {
        for (const auto& molecule : column->getMolecules()) {
            const POINT old = molecule->GetPosition();
            molecule->SetPosition({old.x + delta.x, old.y + delta.y});
        }
    }
}

void UIContainerMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
}

void UIContainerMolecule::Inner(std::vector<UIMolecule*>& molecules)
{
    if (!m_nested)
        return;
    for (UIMolecule* molecule : m_nested->getMolecules())
        molecules.push_back(molecule);
}

CXString UIContainerMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIContainerMolecule : UIMolecule : IObserver");
}
