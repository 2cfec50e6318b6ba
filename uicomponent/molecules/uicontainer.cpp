#include "uicontainer.h"

#include "uicontainerdata.h"

UIContainer::UIContainer(const UIContainerData& data, const UIMoleculeSite& site) : m_data(data)
{
    for (const auto& column : data.getColumns())
        m_columns.push_back(std::make_unique<UIColumn>(*column, site));
}

UIContainer::~UIContainer() = default;

std::vector<UIMolecule*> UIContainer::getMolecules() const
{
    std::vector<UIMolecule*> molecules;
    for (const auto& column : m_columns) {
        for (const auto& molecule : column->getMolecules()) {
            molecules.push_back(molecule.get());
            molecule->Inner(molecules);
        }
    }
    return molecules;
}
