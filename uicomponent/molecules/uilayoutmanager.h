#pragma once

#include <windows.h>

#include "cxstring.h"

class UIContainer;

/// Places the molecules of a page: the columns stand where their description says, the molecules of
/// a column below each other from the top margin downwards. Dialog units throughout.
class UILayoutManager
{
public:
    /// Distance of the content from every edge of the page.
    static constexpr long kMargin = 7;

    /// @param extraHeight  room at the lower edge that is not the content's (a row of buttons).
    explicit UILayoutManager(const UIContainer& container, long extraHeight = 0);

    /// What does not fit the page, named by its molecule; empty when everything fits.
    CXString findMisfit() const;
    /// Gives every molecule its place and width.
    void layOut() const;

private:
    const UIContainer& m_container;
    long m_extraHeight;
};
