#include "entrydrawing.h"

#include "cxstring.h"

namespace o7 {

namespace {

/// The colours of an entry, as system colour numbers.
struct EntryColours
{
    int background;
    int text;
};

EntryColours coloursFor(const DRAWITEMSTRUCT& item, bool isUnavailable, bool isSelected)
{
    if ((item.itemState & ODS_DISABLED) != 0) {
        // An open list stays as its window paints it below the last entry.
        return {item.CtlType == ODT_LISTBOX ? COLOR_WINDOW : COLOR_BTNFACE, COLOR_GRAYTEXT};
    }
    if (isUnavailable) {
        return {COLOR_WINDOW, COLOR_GRAYTEXT};
    }
    return isSelected ? EntryColours{COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT}
                      : EntryColours{COLOR_WINDOW, COLOR_WINDOWTEXT};
}

/// The field of a closed list is no higher than its font: a focus rectangle would cut the ends of
/// letters off, so the field takes in the line above and the one below, which are free up to the
/// frame. The system's clipping leaves them out.
RECT areaOf(const DRAWITEMSTRUCT& item)
{
    RECT area = item.rcItem;
    if ((item.itemState & ODS_COMBOBOXEDIT) != 0) {
        ::SelectClipRgn(item.hDC, nullptr);
        ::InflateRect(&area, 0, 1);
    }
    return area;
}

void drawEntryText(const DRAWITEMSTRUCT& item, RECT area, const CXString& text, int colour)
{
    ::InflateRect(&area, -::GetSystemMetrics(SM_CXEDGE), 0);
    const bool isRightToLeft =
        (::GetWindowLongPtrW(item.hwndItem, GWL_EXSTYLE) & WS_EX_RTLREADING) != 0;
    ::SetTextColor(item.hDC, ::GetSysColor(colour));
    ::SetBkMode(item.hDC, TRANSPARENT);
    ::DrawTextW(item.hDC, text.c_str(), text.GetLength(), &area,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS |
                    (isRightToLeft ? DT_RTLREADING : 0U));
}

} // namespace

void drawEntry(const DRAWITEMSTRUCT& item, const CXString& text, bool isUnavailable)
{
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
    const EntryColours colours = coloursFor(item, isUnavailable, isSelected);
    const int saved = ::SaveDC(item.hDC);
    const RECT area = areaOf(item);
    ::FillRect(item.hDC, &area, ::GetSysColorBrush(colours.background));
    if (item.itemID != static_cast<UINT>(-1)) {
        drawEntryText(item, area, text, colours.text);
    }
    const bool hasFocus = (item.itemState & ODS_FOCUS) != 0 || (isUnavailable && isSelected);
    if (hasFocus && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        ::DrawFocusRect(item.hDC, &area);
    }
    ::RestoreDC(item.hDC, saved);
}

} // namespace o7
