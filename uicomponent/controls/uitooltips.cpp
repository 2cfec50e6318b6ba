#include "uitooltips.h"

#include "isolationaware.h"
#include "textmeasure.h"
#include "tipplacement.h"
#include "uiwindowsmessage.h"
#include "windowtext.h"

#include <commctrl.h>

#include <iterator>

namespace {

constexpr DWORD kStyle = WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX;
static_assert(kStyle == 0x80000003);

constexpr int kMaximumWidth = 800; ///< pixels; longer texts go on in the next line
constexpr int kTrackingOffset = 16;

/// A tool without its text. A page laid out from right to left is read that way. The size is the
/// one that every version of the library knows.
TTTOOLINFOW toolInfo(HWND owner, HWND tool, UINT flags)
{
    TTTOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    info.uFlags = flags | (o7::isMirrored(owner) ? TTF_RTLREADING : 0U);
    info.hwnd = owner;
    info.uId = reinterpret_cast<UINT_PTR>(tool);
    return info;
}

TTTOOLINFOW windowTool(HWND owner, HWND tool, HINSTANCE instance, INT_PTR text)
{
    TTTOOLINFOW info = toolInfo(owner, tool, TTF_IDISHWND | TTF_SUBCLASS);
    info.hinst = instance;
    info.lpszText = reinterpret_cast<wchar_t*>(text);
    return info;
}

/// The tool that stands for the area of a control. Windows have even handles, so its number keeps
/// it apart from the tool of the window itself.
TTTOOLINFOW areaTool(HWND owner, HWND control)
{
    TTTOOLINFOW info = toolInfo(owner, control, 0);
    info.uId |= 1;
    return info;
}

/// The tool that stands for a part of a window. Its number keeps it apart from the tools that stand
/// for whole windows, by their handles. The mouse goes through its tip.
TTTOOLINFOW placedTool(HWND window)
{
    TTTOOLINFOW info = toolInfo(window, nullptr, TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT);
    info.uId = 1;
    return info;
}

LRESULT send(HWND window, UINT message, WPARAM wParam, TTTOOLINFOW& info)
{
    return ::SendMessageW(window, message, wParam, reinterpret_cast<LPARAM>(&info));
}

/// A string of this module by its number, or the string that the value points to.
CXString resolveText(INT_PTR text)
{
    if (!IS_INTRESOURCE(text)) {
        return reinterpret_cast<const wchar_t*>(text);
    }
    // With a size of 0 the answer is a pointer to the text in the resource itself.
    const wchar_t* resource = nullptr;
    const int length = ::LoadStringW(IsolationAware::moduleInstance(), static_cast<UINT>(text),
                                     reinterpret_cast<LPWSTR>(&resource), 0);
    return {resource, length};
}

/// A centred static text with one line ignores the mouse; this one has a tip to show.
void letStaticNoticeMouse(HWND control)
{
    const LONG_PTR style = ::GetWindowLongPtrW(control, GWL_STYLE);
    ::SetWindowLongPtrW(control, GWL_STYLE,
                        (style & ~LONG_PTR{SS_CENTERIMAGE}) | LONG_PTR{SS_NOTIFY});
}

/// Whether a label is shown as it is, without mnemonics.
bool showsAmpersands(HWND control)
{
    wchar_t name[16] = L"";
    ::GetClassNameW(control, name, static_cast<int>(std::size(name)));
    return ::_wcsicmp(name, WC_STATICW) == 0 &&
           (::GetWindowLongPtrW(control, GWL_STYLE) & SS_NOPREFIX) != 0;
}

INT_PTR asText(const CXString& text)
{
    return reinterpret_cast<INT_PTR>(text.c_str());
}

} // namespace

UIToolTips::UIToolTips(HWND owner)
    : m_owner(owner),
      m_window(IsolationAware::createWindow(
          WS_EX_TOPMOST, TOOLTIPS_CLASSW, kStyle,
          {CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT}, owner, 0))
{
    ::SendMessageW(getHwnd(), TTM_SETMAXTIPWIDTH, 0, kMaximumWidth);
    subclassWindow(getHwnd());
}

UIToolTips::~UIToolTips()
{
    restoreProcedure();
}

LRESULT UIToolTips::AddToolAndTipMessage(HWND tool, HINSTANCE instance, INT_PTR text)
{
    TTTOOLINFOW info = windowTool(m_owner, tool, instance, text);
    return send(getHwnd(), TTM_ADDTOOLW, 0, info);
}

LRESULT UIToolTips::AddToolAndTrackingTipMessage(HWND tool, HINSTANCE instance, INT_PTR text)
{
    TTTOOLINFOW info = windowTool(m_owner, tool, instance, text);
    const LRESULT added = send(getHwnd(), TTM_ADDTOOLW, 0, info);
    // Only a tool that is marked so stays where it is put, instead of beside the mouse.
    info.uFlags |= TTF_TRACK | TTF_ABSOLUTE;
    send(getHwnd(), TTM_SETTOOLINFOW, 0, info);
    send(getHwnd(), TTM_TRACKACTIVATE, TRUE, info);
    if (added != FALSE) {
        m_tracked = tool;
        m_placed = nullptr;
    }
    WINDOWINFO place{};
    place.cbSize = sizeof place;
    if (::GetWindowInfo(tool, &place) == FALSE) {
        return 0;
    }
    ::SendMessageW(getHwnd(), TTM_TRACKPOSITION, 0,
                   MAKELPARAM(place.rcWindow.left, place.rcWindow.top + kTrackingOffset));
    return added;
}

void UIToolTips::UpdateTipMessage(HWND tool, HINSTANCE instance, INT_PTR text)
{
    TTTOOLINFOW info = windowTool(m_owner, tool, instance, text);
    send(getHwnd(), TTM_UPDATETIPTEXTW, 0, info);
}

void UIToolTips::DeleteToolFromToolTip(HWND tool)
{
    TTTOOLINFOW info = toolInfo(m_owner, tool, TTF_IDISHWND | TTF_SUBCLASS);
    // Whichever tool it names, this ends the tip that is shown.
    if (m_placed == nullptr && (m_tracked == nullptr || m_tracked == tool)) {
        send(getHwnd(), TTM_TRACKACTIVATE, FALSE, info);
        m_tracked = nullptr;
    }
    send(getHwnd(), TTM_DELTOOLW, 0, info);
}

void UIToolTips::SetInitialTime(DWORD which, long milliseconds)
{
    ::SendMessageW(getHwnd(), TTM_SETDELAYTIME, which, MAKELPARAM(milliseconds, 0));
}

LRESULT UIToolTips::ToolExists()
{
    return ::SendMessageW(getHwnd(), TTM_GETCURRENTTOOLW, 0, 0);
}

void UIToolTips::AddToolTipAndTruncatedLabel(ControlType type, HWND control, INT_PTR extraText,
                                             SIZE area, const CXString& label, HFONT font)
{
    // A label that is given again, with another text or area, has its tip already.
    DeleteToolFromToolTip(control);
    CXString tip = showsAmpersands(control) ? label : o7::withoutMnemonics(label);
    if (o7::TextMeasure(font).measure(tip.View()).cx <= area.cx) {
        if (extraText != 0) {
            AddToolAndTipMessage(control, IsolationAware::moduleInstance(), extraText);
        }
        return;
    }
    if (extraText != 0) {
        tip += L" ";
        tip += resolveText(extraText);
    }
    AddToolAndTipMessage(control, nullptr, asText(tip));
    if (type == ControlType::StaticText) {
        letStaticNoticeMouse(control);
    }
}

// A tool's window is subclassed by the tip window, and then pays with every message for a tip that
// most people never ask for.
void UIToolTips::setTip(HWND control, const CXString& text)
{
    if (!text.IsEmpty()) {
        Tip& tip = m_tips[control];
        tip.text = text;
        if (tip.isTool) {
            UpdateTipMessage(control, nullptr, asText(text));
        }
        return;
    }
    const auto known = m_tips.find(control);
    if (known == m_tips.end()) {
        return;
    }
    if (known->second.isTool) {
        DeleteToolFromToolTip(control);
    }
    m_tips.erase(known);
}

void UIToolTips::makeTool(HWND control)
{
    const auto known = m_tips.find(control);
    if (known != m_tips.end() && !known->second.isTool) {
        known->second.isTool = true;
        AddToolAndTipMessage(control, nullptr, asText(known->second.text));
    }
}

void UIToolTips::setAreaTip(HWND control, const CXString& reason)
{
    TTTOOLINFOW info = areaTool(m_owner, control);
    send(getHwnd(), TTM_DELTOOLW, 0, info);
    if (reason.IsEmpty()) {
        return;
    }
    const auto tip = m_tips.find(control);
    const CXString text = tip == m_tips.end() ? reason : tip->second.text + L"\n" + reason;
    ::GetWindowRect(control, &info.rect);
    ::MapWindowPoints(nullptr, m_owner, reinterpret_cast<POINT*>(&info.rect), 2);
    info.lpszText = const_cast<wchar_t*>(text.c_str());
    send(getHwnd(), TTM_ADDTOOLW, 0, info);
}

void UIToolTips::relayMouse(const _UIWindowsMessage& message)
{
    if (message.message == WM_SETCURSOR) {
        makeTool(reinterpret_cast<HWND>(message.wParam));
        return;
    }
    if (message.message < WM_MOUSEFIRST || message.message > WM_MOUSELAST) {
        return;
    }
    MSG event{};
    event.hwnd = message.window;
    event.message = message.message;
    event.wParam = message.wParam;
    event.lParam = message.lParam;
    ::SendMessageW(getHwnd(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&event));
}

void UIToolTips::showPlaced(HWND window, const CXString& text,
                            const std::function<POINT(SIZE)>& placeFor)
{
    hidePlaced(text.IsEmpty() ? window : m_placed);
    TTTOOLINFOW info = placedTool(window);
    info.uFlags |= o7::isMirrored(m_owner) ? UINT{TTF_RTLREADING} : 0U; // a dropped list is not
    info.lpszText = const_cast<wchar_t*>(text.c_str());
    if (text.IsEmpty() || send(getHwnd(), TTM_ADDTOOLW, 0, info) == FALSE) {
        return;
    }
    m_placed = window;
    m_tracked = nullptr;
    const auto moveTo = [&](SIZE size) {
        const POINT place = placeFor(size);
        ::SendMessageW(getHwnd(), TTM_TRACKPOSITION, 0, MAKELPARAM(place.x, place.y));
    };
    const auto expected = static_cast<DWORD>(send(getHwnd(), TTM_GETBUBBLESIZE, 0, info));
    moveTo({LOWORD(expected), HIWORD(expected)});
    send(getHwnd(), TTM_TRACKACTIVATE, TRUE, info);
    // Wine foresees the size of the tip before; then this one has come out otherwise.
    RECT shown{};
    ::GetWindowRect(getHwnd(), &shown);
    moveTo({shown.right - shown.left, shown.bottom - shown.top});
}

void UIToolTips::hidePlaced(HWND window)
{
    if (window == nullptr || window != m_placed) {
        return; // its tip went when another's came
    }
    m_placed = nullptr;
    TTTOOLINFOW info = placedTool(window);
    send(getHwnd(), TTM_TRACKACTIVATE, FALSE, info);
    send(getHwnd(), TTM_DELTOOLW, 0, info);
}

void UIToolTips::showBeside(HWND window, const RECT& part, const CXString& text)
{
    const RECT workArea = o7::workAreaOf(part);
    showPlaced(window, text, [&](SIZE size) {
        return o7::placeBeside(part, size, workArea, o7::isMirrored(m_owner));
    });
}

LRESULT UIToolTips::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return callSavedProcedure(window, message, wParam, lParam);
}
