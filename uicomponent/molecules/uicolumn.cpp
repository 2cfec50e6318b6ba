#include "uicolumn.h"

#include "uicolumndata.h"
#include "uimoleculefactory.h"
#include "uimoleculestack.h"

UIColumn::UIColumn(const UIColumnData& data, const UIMoleculeSite& site)
    : m_data(data), m_molecules(UIMoleculeFactory::createAll(data.getMolecules(), site))
{
    for (const auto& molecule : m_molecules) {
        molecule->SetLabelWidth(data.getLabelWidth());
        molecule->InitializeFromDescription();
    }
}

UIColumn::~UIColumn() = default;

long UIColumn::getHeight() const
{
    return UIMoleculeStack::height(m_molecules);
}
