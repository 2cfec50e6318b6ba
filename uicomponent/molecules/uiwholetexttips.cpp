#include "uiwholetexttips.h"

#include <windows.h>

#include <commctrl.h>

#include <iterator>

#include "textmeasure.h"
#include "uipagewindow.h"
#include "uitooltips.h"
#include "windowtext.h"

namespace {

bool isOfClass(HWND window, const wchar_t* wanted)
{
    wchar_t name[16] = L"";
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return _wcsicmp(name, wanted) == 0;
}

/// The width that a window leaves its text, in pixels; 0 when it shows none that could be cut.
LONG textWidthOf(HWND window)
{
    RECT room{};
    GetClientRect(window, &room);
    const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
    if (isOfClass(window, WC_STATICW))
        return (style & SS_TYPEMASK) <= SS_RIGHT ? room.right : 0;
    if (!isOfClass(window, WC_BUTTONW))
        return 0;
    switch (style & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return room.right - GetSystemMetrics(SM_CXMENUCHECK);
    default:
        return 0;
    }
}

bool isCut(const o7::TextMeasure& measure, const CXString& text, HWND window, LONG width)
{
    RECT room{};
    GetClientRect(window, &room);
    const SIZE needed = measure.measureWrapped(text.View(), width);
    return needed.cx > width || needed.cy > room.bottom;
}

} // namespace

void o7::addWholeTextTips(const UIPageWindow& page, UIToolTips& toolTips)
{
    const TextMeasure measure(page.font);
    for (HWND child = GetWindow(page.window, GW_CHILD); child;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const LONG width = textWidthOf(child);
        if (width <= 0)
            continue;
        const CXString text = windowText(child);
        if (!isCut(measure, text, child, width))
            continue;
        if (isOfClass(child, WC_STATICW)) // ignores the mouse otherwise
            SetWindowLongPtrW(child, GWL_STYLE,
                              GetWindowLongPtrW(child, GWL_STYLE) | LONG_PTR{SS_NOTIFY});
        const bool asItIs =
            isOfClass(child, WC_STATICW) && GetWindowLongPtrW(child, GWL_STYLE) & SS_NOPREFIX;
        toolTips.setTip(child, asItIs ? text : withoutMnemonics(text));
    }
}
