#include "uisheetpages.h"

#include <utility>

#include "isolationaware.h"
#include "uitabmanager.h"

UISheetPages::UISheetPages(UITabManager& manager,
                           const std::vector<const UIContainerData*>& descriptions,
                           HANDLE activationContext)
    : m_count(manager.createPagesForPropertySheet(descriptions, m_pages.data(), m_pages.size(),
                                                  activationContext))
{
}

UISheetPages::~UISheetPages()
{
    for (std::size_t page = 0; page < m_count; ++page)
        IsolationAware::destroyPropertySheetPage(m_pages[page]);
}

bool UISheetPages::show(PROPSHEETHEADERW header)
{
    header.phpage = m_pages.data();
    header.nPages = static_cast<UINT>(std::exchange(m_count, 0U)); // from now on the sheet's
    return header.nPages != 0 && IsolationAware::propertySheet(header) > 0;
}
