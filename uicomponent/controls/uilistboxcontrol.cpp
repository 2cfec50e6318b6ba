#include "uilistboxcontrol.h"

#include "textmeasure.h"
#include "windowtext.h"

namespace {

constexpr DWORD kBorderedStyle = WS_CHILD | WS_BORDER | WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY |
                                 LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
static_assert(kBorderedStyle == 0x40A10051);

constexpr o7::EntryListMessages kMessages = {
    LB_GETCURSEL,   LB_SETCURSEL,   LB_GETCOUNT,  LB_GETTEXT,      LB_GETTEXTLEN,
    LB_GETITEMDATA, LB_SETITEMDATA, LB_ADDSTRING, LB_RESETCONTENT, LB_FINDSTRING};

} // namespace

UIListBoxControl::UIListBoxControl(HWND parent, int id, UIServices& services, HFONT font,
                                   POINT location, SIZE size, DWORD style, bool bordered)
    : UIEntryListControl(parent, id, services, font, location, size, kMessages)
{
    setVisibleFlag(true);
    createControlWindow(L"LISTBOX", style | WS_VISIBLE | (bordered ? kBorderedStyle : 0));
    const int height = o7::TextMeasure(font).fontHeight();
    if (send(LB_GETITEMHEIGHT) != height) {
        send(LB_SETITEMHEIGHT, 0, height);
    }
    subclassWindow(UIControl::getHwnd());
}

UIListBoxControl::~UIListBoxControl() = default;

void UIListBoxControl::dump() const
{
    const auto selection = static_cast<int>(send(LB_GETCURSEL));
    CXString state;
    if (selection >= 0) {
        state = CXString::Formatted(L"selected \"%s\"", o7::oneLine(textOf(selection)).c_str());
    }
    const CXString grey = greyEntries();
    if (!state.IsEmpty() && !grey.IsEmpty()) {
        state += L" ";
    }
    dumpWindow(L"list", state + grey);
}

void UIListBoxControl::notifySelected()
{
    if ((::GetWindowLongPtrW(getHwnd(), GWL_STYLE) & LBS_NOTIFY) != 0) {
        ::SendMessageW(getParentHwnd(), WM_COMMAND, MAKEWPARAM(getId(), LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(getHwnd()));
    }
}

LRESULT UIListBoxControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                                  LPARAM lParam)
{
    if (filterPointing(window, message, lParam)) {
        if (message == WM_LBUTTONDOWN) {
            ::SetFocus(window); // the window itself would have taken it
        }
        // The window must hear of the end of a drag that it has begun.
        if (message != WM_LBUTTONUP) {
            return 0;
        }
    }
    return UIEntryListControl::subclassWindowProcedure(window, message, wParam, lParam);
}
