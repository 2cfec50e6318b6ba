#include "uilayoutmanager.h"

#include "uicolumndata.h"
#include "uicontainer.h"
#include "uicontainerdata.h"
#include "uitextruler.h"

UILayoutManager::UILayoutManager(const UIContainer& container, long extraHeight)
    : m_container(container), m_extraHeight(extraHeight)
{
}

long UILayoutManager::getRoom() const
{
    return m_container.getData().getHeight() - 2 * kMargin - m_extraHeight;
}

void UILayoutManager::fillArea(long width)
{
    m_margin = 0;
    m_widening = width - (m_container.getData().getWidth() - 2 * kMargin);
    if (!m_container.getColumns().empty())
        m_container.getColumns().front()->widen(m_widening);
}

CXString UILayoutManager::findMisfit() const
{
    const UIContainerData& page = m_container.getData();
    const long room = getRoom();
    long free = 0; // where the columns so far end
    unsigned number = 0;
    for (const auto& column : m_container.getColumns()) {
        ++number;
        const UIColumnData& data = column->getData();
        if (data.getX() < free)
            return CXString::Formatted(L"page %u: column %u begins before its place", page.getId(),
                                       number);
        free = data.getX() + data.getWidth();
        if (free > page.getWidth())
            return CXString::Formatted(L"page %u: column %u reaches beyond the page's width",
                                       page.getId(), number);
        if (const UIMolecule* const first = column->findFirstBeyond(room))
            return CXString::Formatted(
                L"page %u: column %u is %ld high, %ld more than there is room for, from %s on",
                page.getId(), number, column->getHeight(), column->getHeight() - room,
                first->GetDumpDisplayString(false).c_str());
    }
    return {};
}

void UILayoutManager::layOut() const
{
    long shift = m_margin - kMargin;
    for (const auto& column : m_container.getColumns()) {
        column->place({column->getData().getX() + shift, m_margin});
        shift = m_margin - kMargin + m_widening;
    }
}

bool UILayoutManager::fitTexts(const UITextRuler& ruler) const
{
    for (const auto& column : m_container.getColumns())
        column->fitTexts(ruler, getRoom());
    layOut();
    return ruler.HasCut();
}
