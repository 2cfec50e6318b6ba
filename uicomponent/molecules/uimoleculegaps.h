#pragma once

/// The distances between molecules that stand below each other, in dialog units.
struct UIMoleculeGaps
{
    long lines = 2;     ///< between two of one line each, such as check boxes
    long related = 4;   ///< between others
    long groups = 7;    ///< before and after a group box
    long firstTop = 11; ///< from the top of a group's frame to what stands in it
    long lastBelow = 7; ///< from there to the lower edge of the frame
};
