#include "uimoleculestack.h"

#include "uimoleculedata.h"

namespace {

// Dialog units.
constexpr long kOneLine = 10;
constexpr long kGapBetweenLines = 2;
constexpr long kGap = 4;
constexpr long kGapBetweenGroups = 7;

bool isOneLine(const UIMolecule& molecule)
{
    return molecule.GetMinimumHeight() <= kOneLine;
}

bool isGroup(const UIMolecule& molecule)
{
    return molecule.GetData().getKind() == UIMoleculeKind::GroupBox;
}

} // namespace

long UIMoleculeStack::gapBetween(const UIMolecule& upper, const UIMolecule& lower)
{
    if (isGroup(upper) || isGroup(lower))
        return kGapBetweenGroups;
    return isOneLine(upper) && isOneLine(lower) ? kGapBetweenLines : kGap;
}

long UIMoleculeStack::height(const Molecules& molecules)
{
    long sum = 0;
    for (std::size_t index = 0; index < molecules.size(); ++index) {
        if (index > 0)
            sum += gapBetween(*molecules[index - 1], *molecules[index]);
        sum += molecules[index]->GetMinimumHeight();
    }
    return sum;
}

void UIMoleculeStack::place(const Molecules& molecules, POINT corner, long width)
{
    for (std::size_t index = 0; index < molecules.size(); ++index) {
        if (index > 0)
            corner.y += gapBetween(*molecules[index - 1], *molecules[index]);
        molecules[index]->SetPositionAndWidth(corner, width);
        corner.y += molecules[index]->GetMinimumHeight();
    }
}
