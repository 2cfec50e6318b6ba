#pragma once

#include <windows.h>

#include "cxstring.h"

class UIContainer;
class UITextRuler;

/// Places the molecules of a page: the columns stand where their description says, the molecules of
/// a column below each other from the top margin downwards. Dialog units throughout.
///
/// It works twice. When the page is built there is no window and no font, so the heights of the
/// records decide whether it can be shown at all. When it gets its window, the texts are measured
/// in its font, and molecules grow as far as there is room (UIColumn::fitTexts).
class UILayoutManager
{
public:
    /// Distance of the content from every edge of the page.
    static constexpr long kMargin = 7;

    /// @param extraHeight  room at the lower edge that is not the content's (a row of buttons).
    explicit UILayoutManager(const UIContainer& container, long extraHeight = 0);

    /// Lets the content fill an area of this width without margins: the first column takes up the
    /// difference to the described width. Before anything is placed.
    void fillArea(long width);

    /// What does not fit the page, named by its molecule; empty when everything fits.
    CXString findMisfit() const;
    /// Gives every molecule its place and width.
    void layOut() const;
    /// The same after every molecule has taken the height that its texts need. Before the controls
    /// are created.
    /// @return whether a text is longer than the room it can have.
    bool fitTexts(const UITextRuler& ruler) const;

private:
    long getRoom() const;

    const UIContainer& m_container;
    long m_extraHeight;
    long m_margin = kMargin;
    long m_widening = 0; ///< of the first column
};
