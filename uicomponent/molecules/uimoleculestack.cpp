#include "uimoleculestack.h"

#include <algorithm>

#include "uimoleculedata.h"

namespace {

constexpr long kOneLine = 10; // dialog units

bool isOneLine(const UIMolecule& molecule)
{
    return molecule.GetMinimumHeight() <= kOneLine;
}

bool isGroup(const UIMolecule& molecule)
{
    return molecule.GetData().getKind() == UIMoleculeKind::GroupBox;
}

} // namespace

long UIMoleculeStack::gapBetween(const UIMolecule& upper, const UIMolecule& lower,
                                 const UIMoleculeGaps& gaps)
{
    if (isGroup(upper) || isGroup(lower))
        return gaps.groups;
    return isOneLine(upper) && isOneLine(lower) ? gaps.lines : gaps.related;
}

long UIMoleculeStack::height(const Molecules& molecules, const UIMoleculeGaps& gaps)
{
    long sum = 0;
    for (std::size_t index = 0; index < molecules.size(); ++index) {
        if (index > 0)
            sum += gapBetween(*molecules[index - 1], *molecules[index], gaps);
        sum += molecules[index]->GetMinimumHeight();
    }
    return sum;
}

void UIMoleculeStack::fitTexts(const Molecules& molecules, const UITextRuler& ruler, long width)
{
    for (const auto& molecule : molecules)
        molecule->FitTexts(ruler, width);
}

long UIMoleculeStack::wantedLabelWidth(const Molecules& molecules, const UITextRuler& ruler)
{
    long widest = 0;
    for (const auto& molecule : molecules)
        widest = std::max(widest, molecule->GetWantedLabelWidth(ruler));
    return widest;
}

void UIMoleculeStack::place(const Molecules& molecules, POINT corner, long width,
                            const UIMoleculeGaps& gaps)
{
    for (std::size_t index = 0; index < molecules.size(); ++index) {
        if (index > 0)
            corner.y += gapBetween(*molecules[index - 1], *molecules[index], gaps);
        molecules[index]->SetPositionAndWidth(corner, width);
        corner.y += molecules[index]->GetMinimumHeight();
    }
}
