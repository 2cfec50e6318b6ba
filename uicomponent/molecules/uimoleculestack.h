#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "uimolecule.h"
#include "uimoleculegaps.h"

/// Molecules below each other: the one rule by which columns and group boxes place what they hold.
/// All values are dialog units.
class UIMoleculeStack
{
public:
    using Molecules = std::vector<std::unique_ptr<UIMolecule>>;

    /// Distance between two neighbours: lines of check boxes stand closer than boxes.
    static long gapBetween(const UIMolecule& upper, const UIMolecule& lower,
                           const UIMoleculeGaps& gaps);
    /// Height of all, without a gap after the last.
    static long height(const Molecules& molecules, const UIMoleculeGaps& gaps);
    /// Lets all change their heights to what their texts need at that width.
    static void fitTexts(const Molecules& molecules, const UITextRuler& ruler, long width);
    /// The room for labels beside their boxes that suits all; 0 when none has a label.
    static long wantedLabelWidth(const Molecules& molecules, const UITextRuler& ruler);
    /// Places all from the given corner downwards.
    static void place(const Molecules& molecules, POINT corner, long width,
                      const UIMoleculeGaps& gaps);
};
