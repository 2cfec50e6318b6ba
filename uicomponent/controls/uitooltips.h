#pragma once

#include "cxstring.h"
#include "subclassedwindow.h"
#include "uiapi.h"
#include "uihandles.h"

#include <windows.h>

#include <functional>
#include <map>

struct _UIWindowsMessage;

/// The one tool-tip window of a page or dialog, shared by its controls. The tools' windows must be
/// removed (or destroyed) before this object goes. Used on the page's UI thread only.
///
/// A text is either the number of a string resource of the instance given with it, or a pointer to
/// a string, which the window copies; numbers are told from pointers by their size.
class O7UI_API UIToolTips : private o7::SubclassedWindow<UIToolTips>
{
public:
    /// What kind of control a label belongs to.
    enum class ControlType
    {
        StaticText, ///< "STATIC": gets the mouse only when told so by its style
        Button,     ///< push, check, radio
        Other,
    };

    explicit UIToolTips(HWND owner);
    ~UIToolTips();

    HWND getHwnd() const noexcept { return m_window.get(); }

    /// Gives a control a tip (TTM_ADDTOOLW). Nonzero on success.
    LRESULT AddToolAndTipMessage(HWND tool, HINSTANCE instance, INT_PTR text);
    /// The same, and shows the tip at once, at the control's left edge and 16 pixels below its top
    /// edge. 0 when the control's place cannot be read.
    LRESULT AddToolAndTrackingTipMessage(HWND tool, HINSTANCE instance, INT_PTR text);
    /// Replaces the text of a control's tip (TTM_UPDATETIPTEXTW).
    void UpdateTipMessage(HWND tool, HINSTANCE instance, INT_PTR text);
    /// Ends tracking, unless it is another's tip that is shown so, then takes the control's tip
    /// away (TTM_DELTOOLW).
    void DeleteToolFromToolTip(HWND tool);
    /// @param which  TTDT_AUTOPOP, TTDT_INITIAL, TTDT_RESHOW or TTDT_AUTOMATIC
    void SetInitialTime(DWORD which, long milliseconds);
    /// Nonzero when a tool is the current one (TTM_GETCURRENTTOOLW).
    LRESULT ToolExists();

    /// Gives a label that is wider than its area a tip with the whole of it, followed by the extra
    /// text if there is one; a label that fits gets the extra text alone, or no tip without one.
    /// A static control is made to notice the mouse.
    /// An ampersand marks a mnemonic, except in a static control that shows it as it is
    /// (SS_NOPREFIX).
    /// @param extraText  0, the number of a string of this module, or a pointer to a string
    /// @param area       room of the label, in pixels; its width counts
    /// @param font       what the label is drawn in (borrowed)
    void AddToolTipAndTruncatedLabel(ControlType type, HWND control, INT_PTR extraText, SIZE area,
                                     const CXString& label, HFONT font);

    /// A control's tip that costs nothing until the mouse is on the control, of which relayMouse
    /// hears. What setAreaTip is given for the same control then stands behind it. A static control
    /// has to have SS_NOTIFY. An empty text takes the tip away, as has to be done before the
    /// control goes.
    void setTip(HWND control, const CXString& text);

    /// The tip of a control that may be disabled. A disabled window lets the mouse through to the
    /// page, so the tip belongs to the control's area of the page, and works as long as the page's
    /// mouse messages are handed to relayMouse. An empty text takes the tip away.
    void setAreaTip(HWND control, const CXString& text);
    /// Hands a mouse message of the owner window to the tip window; other messages are ignored.
    /// With WM_SETCURSOR the owner hears which of its controls the mouse is on.
    void relayMouse(const _UIWindowsMessage& message);

    /// Shows the tip of a part of a window, such as an entry of a list, until hidePlaced. It is a
    /// tool of the tip window only for that time, and one for each window. Empty: shows nothing.
    /// @param placeFor  gives the tip's corner for its size, both in pixels of the screen
    void showPlaced(HWND window, const CXString& text, const std::function<POINT(SIZE)>& placeFor);
    /// The same beside a part (pixels of the screen): after it in the direction of reading,
    /// otherwise before or below it, always inside the work area.
    void showBeside(HWND window, const RECT& part, const CXString& text);
    /// Takes that tip away; harmless when none is shown.
    void hidePlaced(HWND window);

    /// Passes every message on to the tip window's own procedure.
    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

private:
    friend o7::SubclassedWindow<UIToolTips>;
    static constexpr const wchar_t* kProcedureName = L"UIToolTips::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uitooltips";

    void forgetWindow() noexcept { m_window.release(); }

    struct Tip
    {
        CXString text;
        bool isTool = false; ///< of the tip window, since the mouse has been there
    };
    void makeTool(HWND control);

    HWND m_owner;
    o7::UniqueWindow m_window;
    std::map<HWND, Tip> m_tips; ///< those of setTip
    HWND m_placed = nullptr;    ///< the window whose placed tip is shown
    HWND m_tracked = nullptr;   ///< the tool whose tracking tip is shown
};
