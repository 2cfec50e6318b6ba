#pragma once

#include <memory>
#include <vector>

#include "uimolecule.h"

class UIColumnData;

/// One column of a page at run time: owns the molecules that its description lists, in order.
class UIColumn
{
public:
    UIColumn(const UIColumnData& data, const UIMoleculeSite& site);
    UIColumn(const UIColumn&) = delete;
    UIColumn& operator=(const UIColumn&) = delete;
    virtual ~UIColumn();

    /// For columns that have to do something when the model has settled; a plain one has not.
    virtual void settled() {}

    const std::vector<std::unique_ptr<UIMolecule>>& getMolecules() const { return m_molecules; }
    const UIColumnData& getData() const { return m_data; }
    /// Height of the content in dialog units.
    long getHeight() const;

private:
    const UIColumnData& m_data;
    std::vector<std::unique_ptr<UIMolecule>> m_molecules;
};
