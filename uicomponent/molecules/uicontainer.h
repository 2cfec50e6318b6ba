#pragma once

#include <memory>
#include <vector>

#include "uicolumn.h"

class UIContainerData;

/// One page or dialog at run time, without its window: owns its columns.
class UIContainer
{
public:
    UIContainer(const UIContainerData& data, const UIMoleculeSite& site);
    UIContainer(const UIContainer&) = delete;
    UIContainer& operator=(const UIContainer&) = delete;
    virtual ~UIContainer();

    /// For containers that have to do something when the model has settled; a plain one has not.
    virtual void settled() {}

    const UIContainerData& getData() const { return m_data; }
    const std::vector<std::unique_ptr<UIColumn>>& getColumns() const { return m_columns; }
    /// All molecules, those inside groups included, in the order in which their controls are
    /// created: column by column from top to bottom, which is also the Tab order. Borrowed.
    std::vector<UIMolecule*> getMolecules() const;

private:
    const UIContainerData& m_data;
    std::vector<std::unique_ptr<UIColumn>> m_columns;
};
