#include "entryheight.h"

#include "textmeasure.h"

bool o7::answerEntryHeight(HWND page, MEASUREITEMSTRUCT& item) noexcept
{
    if (item.CtlType != ODT_COMBOBOX && item.CtlType != ODT_LISTBOX) {
        return false;
    }
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(page, WM_GETFONT, 0, 0));
    item.itemHeight = static_cast<UINT>(TextMeasure(font).fontHeight());
    return true;
}
