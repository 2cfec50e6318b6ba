#pragma once

#include <windows.h>

#include <memory>
#include <span>
#include <vector>

#include "itemrecord.h"
#include "uicontrol.h"
#include "uitooltips.h"

class UIServices;

namespace o7 {

/// The columns of the gallery. The numbers are places in the table, from left to right.
enum class GalleryState
{
    Normal,
    Hot,     ///< under the pointer
    Pressed, ///< while the button of the mouse is down
    Focused, ///< has the keyboard
    Disabled,
    Cleared,     ///< disabled, and its content taken away
    Unavailable, ///< shows an entry that cannot be chosen
    Truncated,   ///< its text is longer than its room
    RightToLeft,
};
inline constexpr int kGalleryStateCount = 9;

const wchar_t* galleryStateName(GalleryState state);

/// What a control is created with; positions and sizes are dialog units. All is borrowed.
struct GalleryPlace
{
    HWND parent;
    int id;
    UIServices& services;
    HFONT font;
    HFONT boldFont;
    UIToolTips& toolTips;
    POINT location;
    SIZE size;
    DWORD groupStyle; ///< WS_GROUP and WS_TABSTOP for the first of a group, otherwise 0
};

/// One control that is shown, with what belongs to whoever filled it.
struct GallerySample
{
    std::unique_ptr<UIControl> control;
    std::vector<ItemRecord> records; ///< of a list's entries; never grows once they are handed out
};

/// How a control is brought into the pressed state.
enum class GalleryPress
{
    ByMessage, ///< a button, which can be told
    AtMiddle,  ///< by the mouse, at its middle
    AtTop,     ///< by the mouse, in its upper half
    AtEnd,     ///< by the mouse, on the arrow at its end
};

/// One row of the gallery: a class of the module, in one of the ways it can be made.
struct GalleryKind
{
    const wchar_t* name; ///< heading of the row
    const wchar_t* text; ///< shown in it; null for a control without a text
    SIZE size;           ///< dialog units
    unsigned states;     ///< those that it has, a bit for each
    GalleryPress press;
    UIToolTips::ControlType tipType;

    /// Makes the control alone, without any content.
    std::unique_ptr<UIControl> (*create)(const GalleryPlace&);
    /// Gives it what it shows, with that text where it has one.
    void (*fill)(GallerySample&, const wchar_t* text);
    /// Takes its content away again; null for a control that is never cleared.
    void (*clear)(UIControl&);
    /// Makes one of its entries unavailable and shows that one; null for a control without entries.
    void (*showUnavailable)(UIControl&);

    bool has(GalleryState state) const { return (states >> static_cast<int>(state) & 1U) != 0; }
};

/// A page of the gallery: a title and its rows.
struct GallerySection
{
    const wchar_t* title;
    std::span<const GalleryKind> kinds;
};

/// Every control of the module, in reading order.
std::span<const GallerySection> gallerySections();

} // namespace o7
