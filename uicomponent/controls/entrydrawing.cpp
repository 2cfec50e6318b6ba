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

EntryColours coloursFor(bool isDisabled, bool isUnavailable, bool isSelected)
{
    if (isDisabled) {
        return {COLOR_BTNFACE, COLOR_GRAYTEXT};
    }
    if (isUnavailable) {
        return {COLOR_WINDOW, COLOR_GRAYTEXT};
    }
    return isSelected ? EntryColours{COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT}
                      : EntryColours{COLOR_WINDOW, COLOR_WINDOWTEXT};
}

void drawEntryText(const DRAWITEMSTRUCT& item, const CXString& text, int colour)
{
    RECT area = item.rcItem;
    ::InflateRect(&area, -::GetSystemMetrics(SM_CXEDGE), 0);
    const bool isRightToLeft =
        (::GetWindowLongPtrW(item.hwndItem, GWL_EXSTYLE) & WS_EX_RTLREADING) != 0;
    const COLORREF formerColour = ::SetTextColor(item.hDC, ::GetSysColor(colour));
    const int formerMode = ::SetBkMode(item.hDC, TRANSPARENT);
    ::DrawTextW(item.hDC, text.c_str(), text.GetLength(), &area,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS |
                    (isRightToLeft ? DT_RTLREADING : 0U));
    ::SetBkMode(item.hDC, formerMode);
    ::SetTextColor(item.hDC, formerColour);
}

} // namespace

void drawEntry(const DRAWITEMSTRUCT& item, const CXString& text, bool isUnavailable)
{
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
    const EntryColours colours =
        coloursFor((item.itemState & ODS_DISABLED) != 0, isUnavailable, isSelected);
    ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(colours.background));
    if (item.itemID != static_cast<UINT>(-1)) {
        drawEntryText(item, text, colours.text);
    }
    const bool hasFocus = (item.itemState & ODS_FOCUS) != 0 || (isUnavailable && isSelected);
    if (hasFocus && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        ::DrawFocusRect(item.hDC, &item.rcItem);
    }
}

} // namespace o7
