#pragma once

#include <memory>
#include <vector>

#include "uidatalist.h"
#include "uimoleculesite.h"

class UIMolecule;
class UIMoleculeData;

/// Makes molecules from their descriptions, by kind. A new kind of molecule is a new row of its
/// table.
class UIMoleculeFactory
{
public:
    /// @return null for a kind that no class serves; the page then opens with the rest.
    static std::unique_ptr<UIMolecule> create(const UIMoleculeData& data,
                                              const UIMoleculeSite& site);
    /// One molecule per description, in order; those without a class are left out.
    static std::vector<std::unique_ptr<UIMolecule>>
    createAll(const UIDataList<UIMoleculeData>& descriptions, const UIMoleculeSite& site);
};
