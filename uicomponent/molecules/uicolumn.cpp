#include "uicolumn.h"

#include <algorithm>

#include "uicolumndata.h"
#include "uimoleculefactory.h"
#include "uimoleculestack.h"

namespace {

constexpr UIMoleculeGaps kTighter{.lines = 2, .related = 3, .groups = 5, .lastBelow = 5};
constexpr UIMoleculeGaps kTightest{
    .lines = 1, .related = 2, .groups = 4, .firstTop = 10, .lastBelow = 4};

// From what looks best to what needs least.
constexpr UIColumnFit kFits[] = {
    {.mostLines = 2}, {.mostLines = 2, .gaps = kTighter}, {.mostLines = 2, .gaps = kTightest},
    {.mostLines = 1}, {.mostLines = 1, .gaps = kTighter}, {.mostLines = 1, .gaps = kTightest},
};

} // namespace

UIColumn::UIColumn(const UIColumnData& data, const UIMoleculeSite& site)
    : m_data(data),
      m_width(data.getWidth()),
      m_molecules(UIMoleculeFactory::createAll(data.getMolecules(), site))
{
    for (const auto& molecule : m_molecules) {
        molecule->SetLabelWidth(data.getLabelWidth());
        molecule->InitializeFromDescription();
    }
}

UIColumn::~UIColumn() = default;

long UIColumn::getHeight() const
{
    return UIMoleculeStack::height(m_molecules, m_gaps);
}

const UIMolecule* UIColumn::findFirstBeyond(long height) const
{
    const UIMolecule* former = nullptr;
    long bottom = 0;
    for (const auto& molecule : m_molecules) {
        if (former)
            bottom += UIMoleculeStack::gapBetween(*former, *molecule, m_gaps);
        bottom += molecule->GetMinimumHeight();
        if (bottom > height)
            return molecule.get();
        former = molecule.get();
    }
    return nullptr;
}

long UIColumn::labelWidthFor(const UITextRuler& ruler) const
{
    const long described = m_data.getLabelWidth();
    if (!described)
        return 0; // labels stand above their boxes
    const long most = std::max<long>(described, m_width / 2);
    return std::clamp(UIMoleculeStack::wantedLabelWidth(m_molecules, ruler), described, most);
}

void UIColumn::fitTexts(const UITextRuler& ruler, UIColumnFit fit)
{
    fit.labelWidth = labelWidthFor(ruler);
    m_gaps = fit.gaps;
    const UITextRuler own = ruler.ForColumn(fit);
    UIMoleculeStack::fitTexts(m_molecules, own, m_width);
    if (own.HasCut())
        ruler.NoteCut();
}

void UIColumn::fitTexts(const UITextRuler& ruler, long room)
{
    bool isCut = false;
    for (const UIColumnFit& fit : kFits) {
        const UITextRuler attempt = ruler.ForColumn(fit);
        fitTexts(attempt, fit);
        isCut = attempt.HasCut();
        if (getHeight() <= room)
            break;
    }
    if (isCut)
        ruler.NoteCut();
}

void UIColumn::place(POINT corner) const
{
    UIMoleculeStack::place(m_molecules, corner, m_width, m_gaps);
}
