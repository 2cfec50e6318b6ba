#include "uieditcontrol.h"

#include "cxstring.h"
#include "windowtext.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr DWORD kBorderedStyle = WS_CHILD | WS_BORDER | WS_TABSTOP | ES_AUTOVSCROLL;
static_assert(kBorderedStyle == 0x40810040);

constexpr wchar_t kSecret[] = L"\u2022\u2022\u2022\u2022"; // as long for every text

// More than that takes the system seconds, where lines break; where a field takes more, so be it.
constexpr std::size_t kMostPasted = 1000;
constexpr std::size_t kMostOfAll = 4000;

class OpenClipboardScope
{
public:
    explicit OpenClipboardScope(HWND window) : m_isOpen(::OpenClipboard(window) != FALSE) {}
    ~OpenClipboardScope()
    {
        if (m_isOpen) {
            ::CloseClipboard();
        }
    }
    OpenClipboardScope(const OpenClipboardScope&) = delete;
    OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
    bool isOpen() const { return m_isOpen; }

private:
    bool m_isOpen;
};

/// The beginning of the text in the clipboard when that is too long to be pasted; empty otherwise.
CXString longTextOfClipboard(HWND window, std::size_t most)
{
    const OpenClipboardScope clipboard(window);
    const HANDLE data = clipboard.isOpen() ? ::GetClipboardData(CF_UNICODETEXT) : nullptr;
    const SIZE_T size = data != nullptr ? ::GlobalSize(data) / sizeof(wchar_t) : 0;
    const auto* text = size > most ? static_cast<const wchar_t*>(::GlobalLock(data)) : nullptr;
    if (text == nullptr) {
        return {};
    }
    // The block may be larger than its text.
    const bool isLong = std::find(text, text + most, L'\0') == text + most;
    CXString beginning = isLong ? CXString(std::wstring_view(text, most)) : CXString();
    ::GlobalUnlock(data);
    return beginning;
}

} // namespace

UIEditControl::UIEditControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                             SIZE size, DWORD style, bool bordered, int textLimit)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(L"EDIT", style | WS_VISIBLE | (bordered ? kBorderedStyle : 0));
    ::SendMessageW(getHwnd(), EM_LIMITTEXT, static_cast<WPARAM>(std::max(0, textLimit)), 0);
    subclassWindow(getHwnd());
}

UIEditControl::~UIEditControl()
{
    restoreProcedure();
}

void UIEditControl::dump() const
{
    if ((::GetWindowLongPtrW(getHwnd(), GWL_STYLE) & ES_PASSWORD) == 0) {
        dumpWindow(L"edit", {});
        return;
    }
    const CXString text = getText().IsEmpty() ? CXString() : CXString(kSecret);
    dumpWindow(L"edit", text, {});
}

CXString UIEditControl::getText() const
{
    return o7::windowText(getHwnd());
}

void UIEditControl::setText(const CXString& text)
{
    o7::setWindowTextIfDifferent(getHwnd(), text);
}

void UIEditControl::selectAll()
{
    ::SendMessageW(getHwnd(), EM_SETSEL, 0, -1);
}

LRESULT UIEditControl::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                               LPARAM lParam)
{
    if (message != WM_PASTE) {
        return callSavedProcedure(window, message, wParam, lParam);
    }
    // Cut off at the limit, a pasted text would be another one without a word about it.
    const LRESULT limit = ::SendMessageW(window, EM_GETLIMITTEXT, 0, 0);
    ::SendMessageW(window, EM_LIMITTEXT, 0, 0);
    const LRESULT result =
        paste(window, std::clamp(static_cast<std::size_t>(limit) + 1, kMostPasted, kMostOfAll));
    ::SendMessageW(window, EM_LIMITTEXT, static_cast<WPARAM>(limit), 0);
    return result;
}

/// The window measures a text anew for each character that does not fit, so a long one stops the
/// program. What is pasted of such a text is still far too long, and judged so.
LRESULT UIEditControl::paste(HWND window, std::size_t most)
{
    const bool isReadOnly = (::GetWindowLongPtrW(window, GWL_STYLE) & ES_READONLY) != 0;
    const CXString beginning = isReadOnly ? CXString() : longTextOfClipboard(window, most);
    if (beginning.IsEmpty()) {
        return callSavedProcedure(window, WM_PASTE, 0, 0);
    }
    return callSavedProcedure(window, EM_REPLACESEL, TRUE,
                              reinterpret_cast<LPARAM>(beginning.c_str()));
}
