#pragma once

#include <memory>
#include <vector>

#include "uimolecule.h"
#include "uitextruler.h"

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
    /// Makes the column wider than described, or narrower. Before anything is fitted or placed.
    void widen(long dialogUnits) { m_width += dialogUnits; }
    /// Height of the content in dialog units.
    long getHeight() const;
    /// The first molecule that does not end within that height; null when all do. Borrowed.
    const UIMolecule* findFirstBeyond(long height) const;
    /// Lets the molecules take the heights that their texts need in the page's font. When that is
    /// more than there is room for, gaps become smaller first, then labels keep to one line.
    /// @param ruler  notes whether a text is cut
    /// @param room   dialog units that the content may be high
    void fitTexts(const UITextRuler& ruler, long room);
    /// One attempt at that, as the column around a nested one makes it.
    /// @param fit  gaps and lines; the room for labels is this column's own affair
    void fitTexts(const UITextRuler& ruler, UIColumnFit fit);
    /// Places the molecules from that corner of the page downwards.
    void place(POINT corner) const;

private:
    long labelWidthFor(const UITextRuler& ruler) const;

    const UIColumnData& m_data;
    long m_width; ///< dialog units
    std::vector<std::unique_ptr<UIMolecule>> m_molecules;
    UIMoleculeGaps m_gaps;
};
